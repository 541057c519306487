import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// A row with one of a few to choose. The owner answers chosen(index) by setting selection.
SettingsRow {
    id: root

    required property string title
    required property string subtitle
    property alias options: picker.model
    required property int selection

    signal chosen(int index)

    SettingsRowLabel {
        width: parent.width - picker.width - Spacing.regular
        title: root.title
        subtitle: root.subtitle
    }

    PopUpPicker {
        id: picker

        x: parent.width - width
        y: 2
        label: root.title
        currentIndex: root.selection
        onActivated: index => root.chosen(index)
    }
}
