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

    Text {
        id: name

        text: root.label
        textFormat: Text.PlainText
        font: Typography.body
        color: AppColors.primaryText
        Accessible.ignored: true
    }

    Text {
        x: name.width + Spacing.regular
        width: parent.width - x
        horizontalAlignment: Text.AlignRight
        text: root.value
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Typography.body
        color: AppColors.secondaryText
        Accessible.ignored: true
    }
}
