import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// Which preset, what may be done with it, its curve, and how to draw. Height beyond the natural one
// goes to the chart.
Item {
    id: root

    required property CurvesModel model

    readonly property real chartHeight: 340
    readonly property real noteHeight: note.visible ? note.implicitHeight + Spacing.regular : 0

    implicitHeight: selector.implicitHeight + noteHeight + card.naturalHeight + hints.implicitHeight
                    + 2 * Spacing.regular + 2 * Spacing.section

    Column {
        id: rows

        x: Spacing.section
        y: Spacing.section
        width: root.width - 2 * Spacing.section
        spacing: Spacing.regular

        PresetSelectorRow {
            id: selector

            z: 1
            width: parent.width
            model: root.model
        }

        BuiltInTemplateNote {
            id: note

            visible: root.model.isBuiltIn
            width: parent.width
            model: root.model
        }

        CurveEditorCard {
            id: card

            readonly property real naturalHeight: root.chartHeight + 2 * Spacing.medium

            width: parent.width
            height: naturalHeight + Math.max(0, root.height - root.implicitHeight)
            chart: root.model.chart
            help: root.model.chartHelp
        }

        EditingHints {
            id: hints

            width: parent.width
        }
    }
}
