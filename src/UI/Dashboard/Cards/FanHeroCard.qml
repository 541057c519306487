import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Dashboard

// The fans side by side.
Card {
    id: root

    required property RowList fans
    // Fans side by side seldom turn alike, which wants a word and names.
    readonly property bool hasSeveral: fans.count > 1

    Column {
        width: parent.width
        spacing: Spacing.regular

        Heading {
            text: qsTrId("dashboard.fans.title")
            font: Typography.title
        }

        // As many in each line as evenly fit, every line in the middle.
        Item {
            id: gauges

            readonly property real diameter: 110
            readonly property real pitch: diameter + 64
            readonly property int mostInLine: Math.max(1, Math.floor((width - diameter) / pitch) + 1)
            readonly property int lines: Math.ceil(repeater.count / mostInLine)
            readonly property int inLine: Math.ceil(repeater.count / Math.max(1, lines))

            width: parent.width
            height: childrenRect.height

            Repeater {
                id: repeater

                model: root.fans
                delegate: FanGaugeView {
                    required property int index
                    // The delegate lives inside its root: Qt 6.4 has no way to say so to the linter.
                    // qmllint disable unqualified
                    readonly property int line: Math.floor(index / gauges.inLine)
                    readonly property int besides: Math.min(gauges.inLine, repeater.count - line * gauges.inLine) - 1

                    x: Math.round((gauges.width - width - besides * gauges.pitch) / 2)
                       + (index - line * gauges.inLine) * gauges.pitch
                    y: line * (height + Spacing.large)
                    width: gauges.diameter
                    height: implicitHeight
                    showsName: root.hasSeveral
                    // qmllint enable unqualified
                }
            }
        }

        SymbolLabel {
            visible: root.hasSeveral
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, parent.width)
            text: qsTrId("dashboard.fans.differentSpeedsNote")
            symbolName: "info.circle"
            font: Typography.caption
            color: AppColors.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
