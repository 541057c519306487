import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// Seen while the content moves and while the pointer is near.
T.ScrollBar {
    id: root

    readonly property bool isNeeded: size < 1
    readonly property bool isLit: isNeeded && (hovered || pressed || lingering.running)

    padding: 3
    implicitWidth: handle.implicitWidth + leftPadding + rightPadding
    minimumSize: 0.06
    hoverEnabled: true
    visible: isNeeded
    Accessible.ignored: true
    onPositionChanged: lingering.restart()

    Timer { id: lingering; interval: 900 }

    contentItem: Rectangle {
        id: handle

        implicitWidth: root.hovered || root.pressed ? 9 : 6
        radius: width / 2
        color: Qt.alpha(AppColors.isDark ? "white" : "black", root.pressed ? 0.5 : 0.34)
        opacity: root.isLit ? 1 : 0

        Behavior on opacity { NumberAnimation { duration: 180 } }
        Behavior on implicitWidth { NumberAnimation { duration: 120 } }
    }
}
