import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// More about its parent than there is room for, until a click elsewhere or Escape sends it away; that
// click does nothing else.
T.Popup {
    id: root

    required property string text
    property real widest: 320

    readonly property FocusMemory before: FocusMemory {}

    modal: true
    dim: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + 6 : 0
    padding: Spacing.regular
    margins: 6
    implicitWidth: Math.min(contentItem.implicitWidth, widest) + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    onAboutToShow: before.remember(parent)
    onAboutToHide: before.giveBack()

    contentItem: Label {
        text: root.text
        font: Typography.subheadline
        lineHeight: 1.4
        wrapMode: Text.Wrap
        focus: true
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    background: PopupBackground {}

    enter: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 120 } }
    exit: Transition { NumberAnimation { property: "opacity"; to: 0; duration: 90 } }
}
