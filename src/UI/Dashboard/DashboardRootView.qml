import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// The dashboard: waiting, unsupported, or the fans, temperatures and history. As high as its
// content; what waits or is unsupported stands in the middle of whatever height it is given.
Item {
    id: root

    required property DashboardModel model

    implicitWidth: 820
    implicitHeight: content.active ? content.implicitHeight : 420

    Component.onCompleted: model.setView(root)

    Loader {
        active: root.model.state === DashboardModel.Loading
        anchors.fill: parent
        sourceComponent: SensorLoadingView {}
    }

    Loader {
        active: root.model.state === DashboardModel.Unsupported
        anchors.fill: parent
        sourceComponent: UnsupportedHardwareView {}
    }

    Loader {
        id: content

        active: root.model.state === DashboardModel.Content
        width: parent.width
        sourceComponent: DashboardContent { model: root.model }
    }
}
