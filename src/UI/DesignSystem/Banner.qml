import QtQuick
import Kestrowind.DesignSystem

// Something to know about the whole screen, and perhaps a button for it.
Item {
    id: root

    required property string text
    property alias font: words.font
    default property alias action: buttons.data

    implicitHeight: Math.max(icon.height, words.height, buttons.height) + 2 * Spacing.medium
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    CardBackground {
        anchors.fill: parent
        cornerRadius: Radius.banner
        tint: Qt.alpha(AppColors.accent, 0.10)
    }

    Symbol {
        id: icon

        x: Spacing.regular
        anchors.verticalCenter: parent.verticalCenter
        name: "info.circle.fill"
        size: 18
        color: AppColors.accent
    }

    Label {
        id: words

        anchors { left: icon.right; leftMargin: 10; right: buttons.left; rightMargin: Spacing.regular }
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        wrapMode: Text.Wrap
    }

    Row {
        id: buttons

        anchors { right: parent.right; rightMargin: width > 0 ? Spacing.medium : 0 }
        anchors.verticalCenter: parent.verticalCenter
    }
}
