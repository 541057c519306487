import QtQuick
import Kestrowind.DesignSystem

GalleryCard {
    title: "Controls"

    Column {
        spacing: Spacing.medium

        Row {
            spacing: Spacing.small

            PushButton { text: "Standard"; focus: true }
            PushButton { text: "Install"; prominent: true; symbolName: "plus" }
            PushButton { text: "Disabled"; enabled: false }
            PushButton { text: "Prominent"; prominent: true; enabled: false }
        }
        Row {
            spacing: Spacing.small

            IconButton { symbolName: "ellipsis"; text: "More" }
            IconButton { symbolName: "trash"; text: "Delete" }
            TextLink { text: "Open Kestrowind"; symbolName: "macwindow"; anchors.verticalCenter: parent.verticalCenter }
            Switch { label: "On"; isOn: true; anchors.verticalCenter: parent.verticalCenter }
            Switch { label: "Off"; isOn: false; anchors.verticalCenter: parent.verticalCenter }
            Switch { label: "Disabled"; isOn: true; enabled: false; anchors.verticalCenter: parent.verticalCenter }
        }
        Row {
            spacing: Spacing.small

            PopUpPicker { label: "Source"; model: ["Average", "Hottest core"] }
            PopUpPicker { label: "Disabled"; model: ["Average"]; enabled: false }
            Spinner { color: AppColors.secondaryText; anchors.verticalCenter: parent.verticalCenter }
            Spinner { diameter: 26; color: AppColors.accent; anchors.verticalCenter: parent.verticalCenter }
            AppIcon { width: 46; height: 46; side: 34; anchors.verticalCenter: parent.verticalCenter }
        }
        Row {
            spacing: Spacing.regular

            Slider { label: "Boost"; from: 0; to: 100; stepSize: 5; setting: 0; width: 120 }
            Slider { label: "Boost"; from: 0; to: 100; stepSize: 5; setting: 40; width: 120 }
            Slider { label: "Boost"; from: 0; to: 100; stepSize: 5; setting: 100; width: 120; enabled: false }
        }
        Row {
            spacing: Spacing.regular

            Item {
                width: 200
                height: 84

                PopupBackground { anchors.fill: parent }
                Column {
                    x: 5; y: 5; width: 190

                    PopupMenuHeading { text: "Your presets"; width: 190 }
                    PopupMenuItem { text: "Quiet nights"; checkable: true; checked: true; symbolName: "fanblades"; width: 190 }
                    PopupMenuItem { text: "Delete"; checkable: true; destructive: true; symbolName: "trash"; width: 190; highlighted: true }
                }
            }
            Column {
                spacing: 6

                Repeater {
                    model: [true, false]

                    Item {
                        id: pill

                        required property bool modelData

                        width: 120; height: 30

                        CardBackground {
                            anchors.fill: parent
                            cornerRadius: 100
                            tint: pill.modelData ? Qt.alpha(AppColors.accent, 0.28) : "transparent"
                        }
                        SymbolLabel {
                            anchors.centerIn: parent
                            text: pill.modelData ? "Cool" : "Full speed"
                            symbolName: pill.modelData ? "snowflake" : "wind"
                            font: Typography.weighted(Typography.callout, pill.modelData ? Font.DemiBold : Font.Normal)
                        }
                    }
                }
            }
        }
    }
}
