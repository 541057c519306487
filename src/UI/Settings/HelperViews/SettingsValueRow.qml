import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// A label and its value.
SettingsRow {
    id: root

    required property string label
    required property string value

    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    Label {
        id: name

        text: root.label
    }

    Label {
        x: name.width + Spacing.regular
        width: parent.width - x
        horizontalAlignment: Text.AlignRight
        text: root.value
        wrapMode: Text.Wrap
        color: AppColors.secondaryText
    }
}
