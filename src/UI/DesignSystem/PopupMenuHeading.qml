import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// The title of a section of a PopupMenu; nothing to choose.
T.MenuItem {
    id: root

    enabled: false
    leftPadding: 9
    rightPadding: 12
    topPadding: 5
    bottomPadding: 3
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    width: menu ? menu.availableWidth : implicitWidth
    Accessible.role: Accessible.Heading
    Accessible.name: text

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        font: Typography.weighted(Typography.caption, Font.DemiBold)
        color: AppColors.tertiaryText
    }
    indicator: null
    arrow: null
}
