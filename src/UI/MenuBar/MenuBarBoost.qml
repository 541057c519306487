import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MenuBar

// A floor for every fan.
Column {
    id: root

    required property MenuBarModel model

    spacing: 6

    Item {
        width: parent.width
        height: Math.max(caption.height, percent.height)

        MenuBarCaption {
            id: caption

            anchors.verticalCenter: parent.verticalCenter
            text: qsTrId("menuBar.boost.caption")
        }

        TabularText {
            id: percent

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.model.boostText
            font: Typography.weighted(Typography.caption, Font.DemiBold)
            color: root.model.isBoosting ? AppColors.accent : AppColors.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    Item {
        width: parent.width
        height: slider.height

        Symbol {
            x: 2
            anchors.verticalCenter: parent.verticalCenter
            name: "wind"
            size: 16
            color: AppColors.secondaryText
        }

        Slider {
            id: slider

            x: 28
            width: parent.width - x
            label: caption.text
            from: 0
            to: 100
            stepSize: root.model.boostStep
            setting: root.model.boostPercent
            onPressedChanged: root.model.isBoostDragged = pressed
            onChosen: value => root.model.setBoost(value)
        }
    }
}
