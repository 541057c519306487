import QtQuick
import Kestrowind.DesignSystem

// One choice; a name longer than the panel is cut short.
ChoiceButton {
    id: root

    required property choice row
    required property real maximumWidth

    leftPadding: 9
    rightPadding: 9
    topPadding: 5
    bottomPadding: 5
    implicitWidth: Math.min(maximumWidth, Math.ceil(label.implicitWidth) + leftPadding + rightPadding)
    implicitHeight: label.implicitHeight + topPadding + bottomPadding
    text: row.title
    isChosen: row.isChosen

    background: Item {
        CardBackground {
            anchors.fill: parent
            visible: root.row.isChosen
            cornerRadius: height / 2
            tint: Qt.alpha(AppColors.accent, 0.2)
        }

        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: root.down ? AppColors.pressedFill
                 : root.hovered ? AppColors.hoverFill : "transparent"
            border.width: 1
            border.color: root.row.isChosen ? Qt.alpha(AppColors.accent, 0.5)
                                            : Qt.alpha(AppColors.tertiaryText, 0.5)
        }

        FocusRing { shown: root.visualFocus; cornerRadius: parent.height / 2; gap: 0 }
    }

    contentItem: SymbolLabel {
        id: label

        spacing: 5
        symbolName: root.row.symbolName
        text: root.row.title
        font: Typography.caption
        color: AppColors.primaryText
        symbolColor: root.row.isChosen ? AppColors.accent : AppColors.secondaryText
    }
}
