import QtQuick
import Kestrowind.DesignSystem

// One choice of a SegmentedPicker.
PointerWatch {
    id: root

    required property int index
    required property choice row
    required property bool isCurrent
    property real padding: 14

    signal chosen()

    width: label.implicitWidth + 2 * padding
    height: 26
    activeFocusOnTab: isCurrent || activeFocus
    Accessible.role: Accessible.PageTab
    Accessible.name: row.title
    Accessible.selectable: true
    Accessible.selected: isCurrent
    Accessible.onPressAction: chosen()

    SymbolLabel {
        id: label

        anchors.centerIn: parent
        text: root.row.title
        symbolName: root.row.symbolName
        font: Typography.weighted(Typography.body, Font.Medium)
        color: root.isCurrent || (root.hovered && root.enabled) ? AppColors.primaryText : AppColors.secondaryText
    }

    TapHandler { onTapped: root.chosen() }
}
