import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MainWindow

// Everything in the main window: the toolbar above the section that scrolls.
FocusScope {
    id: root

    required property MainWindowModel model

    focus: true
    Keys.forwardTo: [scroller]

    Rectangle {
        anchors.fill: parent
        color: AppColors.windowBackground
    }

    WindowToolbar {
        id: toolbar

        anchors { left: parent.left; right: parent.right; top: parent.top }
        z: 1
        model: root.model
        isContentBehind: scroller.isScrolled
    }

    SectionScroller {
        id: scroller

        anchors { left: parent.left; right: parent.right; top: toolbar.bottom; bottom: parent.bottom }
    }

    WindowShortcuts {
        onSectionRequested: index => root.model.selectSection(index)
        onCloseRequested: root.model.closeRequested()
        onQuitRequested: root.model.quitRequested()
    }
}
