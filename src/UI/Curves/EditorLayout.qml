import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// Which preset, what may be done with its curve, the curve, and what no curve can do. The chart stays
// where it is whichever preset is shown; height beyond the natural one goes to it.
Item {
    id: root

    required property CurvesModel model

    readonly property real chartHeight: 340

    implicitHeight: selector.implicitHeight + terms.height + card.naturalHeight + safety.implicitHeight
                    + 3 * Spacing.regular + 2 * Spacing.section

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

        // A built-in one says that it cannot be changed, any other one how.
        Item {
            id: terms

            width: parent.width
            height: note.implicitHeight

            BuiltInTemplateNote {
                id: note

                visible: root.model.isBuiltIn
                anchors.fill: parent
                model: root.model
            }

            HintLabel {
                visible: !root.model.isBuiltIn
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width
                symbolName: "hand.draw"
                text: qsTrId("curves.hint.howToEdit")
            }
        }

        CurveEditorCard {
            id: card

            readonly property real naturalHeight: root.chartHeight + 2 * Spacing.medium

            width: parent.width
            height: naturalHeight + Math.max(0, root.height - root.implicitHeight)
            chart: root.model.chart
            help: root.model.chartHelp
        }

        HintLabel {
            id: safety

            width: parent.width
            symbolName: "checkmark.shield.fill"
            text: qsTrId("curves.caption.safety")
        }
    }
}
