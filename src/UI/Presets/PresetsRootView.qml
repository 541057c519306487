import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// The presets: a card each, in the user's order, one to make another, and what their menus ask.
Item {
    id: root

    required property PresetsModel model

    implicitWidth: 820
    implicitHeight: column.height + 2 * Spacing.large

    Column {
        id: column

        x: Spacing.large
        y: Spacing.large
        width: root.width - 2 * Spacing.large
        spacing: Spacing.regular

        Label {
            width: parent.width
            text: qsTrId("presets.explainer")
            font: Typography.subheadline
            color: AppColors.secondaryText
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        PresetGrid {
            id: grid

            width: parent.width
            model: root.model
        }
    }

    PresetDialogs { model: root.model }

    Connections {
        target: root.model

        function onCardCreated(row: int): void {
            grid.focusCard(row)
        }
    }
}
