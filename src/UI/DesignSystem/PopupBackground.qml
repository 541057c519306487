import QtQuick
import Kestrowind.DesignSystem

// What floats above the window: opaque, with a hairline and a soft edge in place of a blurred shadow.
Rectangle {
    id: root

    color: AppColors.popupBackground
    radius: Radius.popup
    border.width: 1
    border.color: AppColors.controlBorder

    Repeater {
        model: 5

        Rectangle {
            required property int index

            z: -1
            x: -index
            y: -index + 3
            width: root.width + 2 * index
            height: root.height + 2 * index
            radius: root.radius + index
            color: Qt.alpha("black", AppColors.isDark ? 0.06 : 0.025)
        }
    }
}
