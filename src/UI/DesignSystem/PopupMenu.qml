import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// For context menus and pull-down menus. What lies under an open one is out of reach: the click that
// sends a menu away does nothing else.
T.Menu {
    id: root

    // Of its items, whose widest text decides.
    property real minimumWidth: 150
    property real maximumWidth: Infinity

    readonly property FocusMemory before: FocusMemory {}

    // At a point of `anchor`, on the item that is chosen already, else on the first.
    function openAt(anchor: Item, point: point): void {
        popup(anchor, point.x, point.y)
        forceActiveFocus(Qt.PopupFocusReason)
        currentIndex = entrance()
    }

    function entrance(): int {
        let first = -1
        for (let i = 0; i < count; ++i) {
            const item = itemAt(i) as T.MenuItem
            if (item === null || !item.enabled)
                continue
            if (item.checked)
                return i
            if (first < 0)
                first = i
        }
        return first
    }

    function fit(): void {
        let widest = minimumWidth
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i).implicitWidth)
        width = Math.min(widest, maximumWidth) + leftPadding + rightPadding
    }

    modal: true
    dim: false
    padding: 5
    margins: 6
    overlap: 1
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    delegate: PopupMenuItem {}
    // A menu is no item: what it is shown as bears its name.
    Component.onCompleted: contentItem.parent.Accessible.name = Qt.binding(() => title)
    onAboutToShow: {
        fit()
        before.remember(parent)
    }
    onAboutToHide: before.giveBack()

    contentItem: ListView {
        implicitHeight: contentHeight
        model: root.contentModel
        currentIndex: root.currentIndex
        interactive: contentHeight > height
        clip: interactive
    }

    background: PopupBackground {}

    enter: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 90 } }
    exit: Transition { NumberAnimation { property: "opacity"; to: 0; duration: 110 } }
}
