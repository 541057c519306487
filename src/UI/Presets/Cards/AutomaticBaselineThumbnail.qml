import QtQuick
import Kestrowind.DesignSystem

// No curve: the Mac decides.
Item {
    Rectangle {
        y: Math.round(parent.height / 2)
        width: parent.width
        height: 1.5
        radius: height / 2
        antialiasing: true
        color: AppColors.tertiaryText
    }
}
