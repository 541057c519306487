import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// Makes a preset while there may be more; then it says why not. Its menu imports one.
FocusScope {
    id: root

    required property bool canCreate
    required property string limitHelp
    readonly property bool isHovering: button.hovered || menuButton.hovered
    readonly property bool isLit: isHovering && canCreate

    signal clicked()
    signal contextMenuRequested(point at)

    function requestMenu(at: point): void {
        if (canCreate)
            contextMenuRequested(at)
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => root.requestMenu(eventPoint.position)
    }

    ActionButton {
        id: button

        anchors.fill: parent
        focus: true
        enabled: root.canCreate
        focusPolicy: Qt.StrongFocus
        text: root.canCreate ? qsTrId("presets.card.newPreset") : qsTrId("presets.card.limitReached")
        onClicked: root.clicked()
        Keys.onMenuPressed: root.requestMenu(Qt.point(width / 2, height / 2))
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier)
            if (event.accepted)
                root.requestMenu(Qt.point(width / 2, height / 2))
        }
        Accessible.description: tip.text

        // qmllint disable deferred-property-id
        background: Item {
            // qmllint enable deferred-property-id
            Rectangle {
                anchors.fill: parent
                radius: Radius.card
                color: button.down ? AppColors.pressedFill : AppColors.hoverFill
                opacity: button.down || root.isLit ? 1 : 0

                Behavior on opacity { SpringMotion { timing: Springs.hover } }
            }

            DashedOutline {
                topColor: Qt.alpha(AppColors.secondaryText, 0.45)
                opacity: 1 - lit.opacity
            }

            DashedOutline {
                id: lit

                topColor: Qt.alpha(AppColors.accent, 0.7)
                opacity: root.isHovering ? 1 : 0

                Behavior on opacity { SpringMotion { timing: Springs.hover } }
            }

            FocusRing { shown: button.visualFocus; cornerRadius: Radius.card; gap: 1 }
        }

        contentItem: Item {
            Column {
                anchors.centerIn: parent
                width: parent.width - 2 * Spacing.regular
                spacing: Spacing.small

                Symbol {
                    anchors.horizontalCenter: parent.horizontalCenter
                    name: root.canCreate ? "plus.circle.fill" : "tray.full"
                    size: 38
                    color: root.canCreate ? AppColors.accent : AppColors.tertiaryText
                }

                Label {
                    width: parent.width
                    text: button.text
                    font: Typography.headline
                    color: root.canCreate ? AppColors.primaryText : AppColors.secondaryText
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                }
            }
        }
    }

    CardMenuButton {
        id: menuButton

        anchors { top: parent.top; right: parent.right; margins: Spacing.medium }
        visible: root.canCreate
        cardName: button.text
        shown: root.isHovering || button.visualFocus
        onClicked: root.requestMenu(Qt.point(x, y + height))
    }

    Tooltip {
        id: tip

        text: root.canCreate ? qsTrId("presets.newPresetHelp") : root.limitHelp
        shown: root.isHovering
    }
}
