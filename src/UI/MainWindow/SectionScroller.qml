import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem
import Kestrowind.MainWindow

// The section, scrolled by wheel, keys and the scroll bar.
FocusScope {
    id: root

    readonly property bool isScrolled: flick.contentY > 0
    readonly property real furthest: Math.max(0, flick.contentHeight - flick.height)
    readonly property real line: 40
    readonly property real page: Math.max(line, flick.height - line)

    function scrollTo(position: real, glides: bool) {
        glide.stop()
        const target = Math.max(0, Math.min(position, furthest))
        if (glides) {
            glide.to = target
            glide.start()
        } else {
            flick.contentY = target
        }
    }

    function scrollBy(distance: real, glides: bool) {
        scrollTo((glide.running ? glide.to : flick.contentY) + distance, glides)
    }

    function reveal(area: rect) {
        if (area.height <= 0)
            return
        if (area.y < flick.contentY)
            scrollTo(area.y - Spacing.large, true)
        else if (area.y + area.height > flick.contentY + flick.height)
            scrollTo(area.y + area.height + Spacing.large - flick.height, true)
    }

    clip: true
    onFurthestChanged: if (flick.contentY > furthest) scrollTo(furthest, false)
    Keys.onUpPressed: scrollBy(-line, true)
    Keys.onDownPressed: scrollBy(line, true)
    Keys.onPressed: event => {
        const keys = [Qt.Key_PageUp, Qt.Key_PageDown, Qt.Key_Home, Qt.Key_End]
        const targets = [flick.contentY - page, flick.contentY + page, 0, furthest]
        const key = keys.indexOf(event.key)
        event.accepted = key >= 0
        if (event.accepted)
            scrollTo(targets[key], true)
    }

    Flickable {
        id: flick

        anchors.fill: parent
        contentWidth: width
        contentHeight: host.height
        interactive: false
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: SlimScrollBar {}

        SectionHost {
            id: host

            width: flick.width
            height: implicitHeight
            viewportHeight: flick.height
            onContentReplaced: root.scrollTo(0, false)

            readonly property Item focused: Window.activeFocusItem
            onFocusedChanged: root.reveal(areaOf(focused))
        }
    }

    NumberAnimation {
        id: glide

        target: flick
        property: "contentY"
        duration: 160
        easing.type: Easing.OutCubic
    }

    WheelHandler {
        target: null
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            // Touch pads give the distance, wheels give notches of an eighth of a degree.
            if (event.pixelDelta.y !== 0)
                root.scrollBy(-event.pixelDelta.y, false)
            else
                root.scrollBy(-event.angleDelta.y / 120 * 2 * root.line, true)
        }
    }
}
