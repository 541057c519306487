import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// Appears after the pointer has rested on its parent. An empty text shows nothing.
T.ToolTip {
    id: root

    required property bool shown
    // Between its parent and itself, points.
    property real gap: 6
    property real widest: 280

    visible: shown && text.length > 0
    delay: 700
    timeout: 8000
    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + gap : 0
    leftPadding: 8
    rightPadding: 8
    topPadding: 4
    bottomPadding: 4
    margins: 4
    implicitWidth: Math.min(contentItem.implicitWidth, widest) + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: Label {
        text: root.text
        font: Typography.caption
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        maximumLineCount: 8
    }

    background: PopupBackground { radius: Radius.small }

    enter: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 120 } }
    exit: Transition { NumberAnimation { property: "opacity"; to: 0; duration: 80 } }
}
