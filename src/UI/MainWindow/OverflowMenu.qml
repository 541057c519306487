import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem
import Kestrowind.MainWindow

// The slots that have no pill, behind three dots.
T.Button {
    id: root

    required property PillListModel model
    required property bool containsActive
    readonly property int count: model.count

    signal chosen(int index)

    text: qsTrId("mainWindow.presetBar.morePresets")
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: text
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()
    Keys.onDownPressed: root.clicked()
    onClicked: menu.opened ? menu.close() : menu.popup(root, 0, root.height + Spacing.tight)
    onEnabledChanged: if (!enabled) menu.close()

    background: PillSurface {
        isTinted: root.containsActive
        isLifted: root.hovered && root.enabled && !menu.visible
        isPressed: root.down || menu.visible
        isFocused: root.visualFocus
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: "ellipsis"
            size: 18
            color: root.containsActive || root.hovered ? AppColors.primaryText : AppColors.secondaryText
        }
    }

    PopupMenu {
        id: menu

        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
        // As wide as the longest name: here names are never shortened.
        onAboutToShow: {
            let widest = 150
            for (let i = 0; i < count; ++i)
                widest = Math.max(widest, itemAt(i).implicitWidth)
            width = widest + leftPadding + rightPadding
        }

        Repeater {
            model: root.model
            delegate: PopupMenuItem {
                required property int index
                required property string fullName
                required property bool isActive
                required symbolName

                text: fullName
                // The active one among them makes room for its tick in all.
                checkable: root.containsActive
                checked: isActive
                onToggled: checked = Qt.binding(() => isActive)
                onTriggered: root.chosen(index)
            }
        }
    }

    Tooltip { text: root.text; shown: root.hovered && !menu.visible; gap: 36 }
}
