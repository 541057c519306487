import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

T.MenuSeparator {
    leftPadding: 9
    rightPadding: 9
    topPadding: 5
    bottomPadding: 5
    implicitHeight: 11
    implicitWidth: 40

    contentItem: Rectangle {
        implicitHeight: 1
        color: AppColors.separator
    }
}
