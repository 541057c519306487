import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// The inside of a card, from its badge down to its thumbnail.
Item {
    id: root

    required property presetCard row
    // Beside the name, for the button of the card's menu.
    readonly property real menuWidth: 24
    readonly property bool isNameTruncated: nameText.truncated

    // Names may be written in letters of any height.
    clip: true

    Column {
        x: Spacing.regular
        y: Spacing.regular
        width: root.width - 2 * Spacing.regular
        spacing: 10

        Item {
            width: parent.width
            height: badge.height

            PresetIconBadge {
                id: badge

                symbolName: root.row.symbolName
                isActive: root.row.isActive
            }

            ActivePresetBadge {
                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                visible: root.row.isActive
            }
        }

        Label {
            id: nameText

            width: parent.width - root.menuWidth
            height: 17
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignLeft
            text: root.row.name
            font: Typography.headline
            elide: Text.ElideRight
            maximumLineCount: 1
        }

        Label {
            width: parent.width
            height: 13
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignLeft
            text: root.row.caption
            font: Typography.caption
            color: AppColors.secondaryText
            elide: Text.ElideRight
            maximumLineCount: 1
        }

        ThumbnailPlotChrome {
            id: plot

            width: parent.width
            height: 54

            MiniCurveThumbnail {
                anchors.fill: parent
                visible: !root.row.isAutomatic
                curve: root.row.curve
                lineColor: root.row.isActive ? AppColors.accent : AppColors.secondaryText
                areaColor: Qt.alpha(root.row.isActive ? AppColors.accent : AppColors.primaryText, 0.12)
            }

            AutomaticBaselineThumbnail {
                anchors.fill: parent
                visible: root.row.isAutomatic
            }
        }
    }
}
