import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MenuBar

// One die's temperature in its colour.
Item {
    id: root

    required property menuBarTemperature row

    implicitHeight: Math.max(label.height, value.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: row.spokenText

    Symbol {
        x: 2
        anchors.verticalCenter: parent.verticalCenter
        name: root.row.symbolName
        size: 16
        color: AppColors.secondaryText
    }

    Label {
        id: label

        x: 28
        anchors.verticalCenter: parent.verticalCenter
        text: root.row.label
        font: Typography.subheadline
    }

    TabularText {
        id: value

        anchors.right: parent.right
        anchors.baseline: label.baseline
        text: root.row.text
        font: Typography.weighted(Typography.subheadline, Font.DemiBold)
        color: root.row.isKnown ? AppColors.temperatureColor(root.row.celsius)
                                : AppColors.secondaryText
    }
}
