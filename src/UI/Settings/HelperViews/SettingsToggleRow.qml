import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// A row that is one switch all over.
Switch {
    id: root

    required property string title
    required property string subtitle

    label: title
    width: parent ? parent.width : 0
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: Spacing.regular
    rightPadding: implicitIndicatorWidth + 2 * Spacing.regular
    topPadding: Spacing.medium
    bottomPadding: Spacing.medium
    Accessible.description: subtitle

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
}
