import QtQuick
import Kestrowind.DesignSystem

Rectangle {
    implicitHeight: 1
    color: AppColors.separator
}
