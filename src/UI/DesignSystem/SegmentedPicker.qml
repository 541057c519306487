import QtQuick
import Kestrowind.DesignSystem

// One of a few choices. The owner answers selected(index) by setting currentIndex.
FocusScope {
    id: root

    property alias model: segments.model
    property int currentIndex: 0
    property string label
    property real segmentPadding: 14
    readonly property Item currentSegment: segments.count > 0 ? segments.itemAt(currentIndex) : null

    signal selected(int index)

    // Where the keyboard works is what is said of it.
    onCurrentSegmentChanged: if (activeFocus && currentSegment) currentSegment.forceActiveFocus()

    function step(by: int) {
        const next = currentIndex + by
        if (next >= 0 && next < segments.count)
            selected(next)
    }

    implicitWidth: row.width + 4
    implicitHeight: row.height + 4
    opacity: enabled ? 1 : 0.45
    Accessible.role: Accessible.PageTabList
    Accessible.name: label
    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)

    Rectangle {
        anchors.fill: parent
        radius: Radius.control + 2
        color: AppColors.quaternaryFill

        FocusRing { shown: root.activeFocus; cornerRadius: parent.radius; gap: 0 }
    }

    Rectangle {
        visible: root.currentSegment !== null
        x: root.currentSegment ? 2 + root.currentSegment.x : 0
        y: 2
        width: root.currentSegment ? root.currentSegment.width : 0
        height: row.height
        radius: Radius.control
        color: AppColors.selectedSegment
        border.width: 1
        border.color: AppColors.controlBorder

        Behavior on x { SpringMotion { timing: Springs.collection } }
        Behavior on width { SpringMotion { timing: Springs.collection } }
    }

    Row {
        id: row

        x: 2
        y: 2

        Repeater {
            id: segments

            delegate: Segment {
                id: segment

                // The delegate lives inside its root: Qt 6.4 has no way to say so to the linter.
                // qmllint disable unqualified
                padding: root.segmentPadding
                isCurrent: segment.index === root.currentIndex
                onChosen: root.selected(segment.index)
                // qmllint enable unqualified
            }
        }
    }
}
