import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// The frame of a card: it rises towards the pointer, and the active one is outlined and glows.
Item {
    id: root

    required property bool isActive
    required property bool isLifted
    required property bool isPressed
    required property bool isFocused
    required property bool isTarget

    GlowShadow {
        blurRadius: 9
        offset: 4
        cornerRadius: Radius.card
        strength: root.isLifted ? 0.12 : 0
    }

    GlowShadow {
        blurRadius: 9
        offset: 2
        cornerRadius: Radius.card
        color: AppColors.accent
        strength: root.isActive ? 0.35 : 0
        timing: Springs.collection
    }

    CardBackground {
        anchors.fill: parent
        cornerRadius: Radius.card
        tint: root.isTarget ? Qt.alpha(AppColors.accent, 0.16) : "transparent"
    }

    Rectangle {
        anchors.fill: parent
        radius: Radius.card
        color: root.isPressed ? AppColors.pressedFill : "transparent"
    }

    CardOutline {
        anchors.fill: parent
        visible: root.isActive || root.isTarget
        cornerRadius: Radius.card
        lineWidth: 2
        topColor: AppColors.accent
        bottomColor: root.isTarget ? AppColors.accent : Qt.alpha(AppColors.accent, 0.45)
    }

    FocusRing {
        shown: root.isFocused
        cornerRadius: Radius.card
        gap: 1
    }
}
