import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem
import Kestrowind.Settings

// A row that is one switch all over. The owner answers flipped() by setting isOn.
T.Switch {
    id: root

    required property string title
    required property string subtitle
    required property bool isOn

    signal flipped(bool on)

    width: parent ? parent.width : 0
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: Spacing.regular
    rightPadding: implicitIndicatorWidth + 2 * Spacing.regular
    topPadding: Spacing.medium
    bottomPadding: Spacing.medium
    checked: isOn
    onToggled: {
        flipped(checked)
        // The click has set it; what counts may be something else.
        checked = Qt.binding(() => root.isOn)
    }
    Accessible.name: title
    Accessible.description: subtitle
    Keys.onReturnPressed: flip()
    Keys.onEnterPressed: flip()

    // As the space bar does.
    function flip() {
        toggle()
        toggled()
    }

    background: Item {
        Separator {
            visible: root.y > 0
            x: Spacing.regular
            width: root.width - Spacing.regular
        }
    }

    contentItem: SettingsRowLabel {
        title: root.title
        subtitle: root.subtitle
    }

    indicator: SwitchTrack {
        x: root.width - width - Spacing.regular
        y: Math.round((root.height - height) / 2)
        checked: root.checked
        pressed: root.down
        focused: root.visualFocus
        visualPosition: root.visualPosition
    }
}
