import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// A preset's symbol on a disc, which is coloured for the active preset alone.
GradientDisc {
    id: root

    required property string symbolName
    required property bool isActive

    implicitWidth: 42
    implicitHeight: 42
    topColor: isActive ? AppColors.accentFill : "#8593a6"
    bottomColor: isActive ? AppColors.accentFill : "#5f6c80"

    Symbol {
        anchors.centerIn: parent
        name: root.symbolName
        size: 22
        color: root.isActive ? AppColors.onAccent : "white"
    }
}
