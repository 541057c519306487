import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// One line of text. What is written from right to left begins at the right.
T.TextField {
    id: root

    required property string label

    implicitWidth: 220
    implicitHeight: Math.max(30, contentHeight + topPadding + bottomPadding)
    leftPadding: 9
    rightPadding: 9
    topPadding: 5
    bottomPadding: 5
    font: Typography.body
    color: AppColors.primaryText
    placeholderTextColor: AppColors.tertiaryText
    selectionColor: activeFocus ? AppColors.accentFill : AppColors.quaternaryFill
    selectedTextColor: activeFocus ? AppColors.onAccent : AppColors.primaryText
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    opacity: enabled ? 1 : 0.45
    Accessible.name: label

    background: Rectangle {
        radius: Radius.control
        color: AppColors.fieldFill
        border.width: 1
        border.color: AppColors.popupBorder

        // While something can be typed here it shows, however it came to be so.
        FocusRing { shown: root.activeFocus; gap: -1 }
    }

    Label {
        x: root.leftPadding
        y: root.topPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height - root.topPadding - root.bottomPadding
        visible: root.length === 0 && root.preeditText.length === 0
        text: root.placeholderText
        font: root.font
        color: root.placeholderTextColor
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
