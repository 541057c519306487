import QtQuick
import Kestrowind.DesignSystem

// The frame behind a thumbnail.
Rectangle {
    default property alias plot: area.data

    radius: 8
    color: Qt.alpha(AppColors.quaternaryFill, AppColors.quaternaryFill.a * 0.35)

    Item {
        id: area

        anchors.fill: parent
        anchors.margins: 6
    }
}
