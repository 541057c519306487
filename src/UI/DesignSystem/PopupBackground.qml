import QtQuick
import Kestrowind.DesignSystem

// What floats above the window: opaque, with a hairline and a soft edge in place of a blurred shadow.
Rectangle {
    id: root

    color: AppColors.popupBackground
    radius: Radius.popup
    border.width: 1
    border.color: AppColors.popupBorder

    Repeater {
        model: 5

        Rectangle {
            id: halo

            required property int index

            z: -1
            x: -halo.index
            y: -halo.index + 3
            // The delegate lives inside its root: Qt 6.4 has no way to say so to the linter.
            // qmllint disable unqualified
            width: root.width + 2 * halo.index
            height: root.height + 2 * halo.index
            radius: root.radius + halo.index
            // qmllint enable unqualified
            color: Qt.alpha("black", AppColors.isDark ? 0.09 : 0.025)
        }
    }
}
