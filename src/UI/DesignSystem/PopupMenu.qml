import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// For context menus (popup()) and pull-down menus (open()).
T.Menu {
    id: root

    padding: 5
    margins: 6
    overlap: 1
    implicitWidth: Math.max(160, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    delegate: PopupMenuItem {}
    onAboutToShow: before.remember(parent)
    onAboutToHide: before.giveBack()

    readonly property FocusMemory before: FocusMemory {}

    contentItem: ListView {
        implicitWidth: contentItem.childrenRect.width
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
