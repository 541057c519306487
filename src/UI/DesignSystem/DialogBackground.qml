import QtQuick
import Kestrowind.DesignSystem

// The surface of a dialog, well above the window.
Item {
    SoftShadow {
        anchors.fill: parent
        anchors.margins: -2 * blurRadius
        blurRadius: 24
        offset: 10
        cornerRadius: Radius.banner
        opacity: AppColors.isDark ? 0.6 : 0.3
    }

    Rectangle {
        anchors.fill: parent
        radius: Radius.banner
        color: AppColors.popupBackground
        border.width: 1
        border.color: AppColors.popupBorder
    }
}
