import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// One of a few texts (the model, a list), behind a button that shows the current one. The owner
// answers activated(index) by setting currentIndex.
T.ComboBox {
    id: root

    required property string label

    readonly property real tickWidth: 18

    font: Typography.body
    leftPadding: 12
    rightPadding: 28
    topPadding: 4
    bottomPadding: 4
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(28, implicitContentHeight + topPadding + bottomPadding)
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
    Accessible.name: label
    Accessible.description: displayText
    // As the space bar does; on release, because with the release it would close again.
    Keys.onReleased: event => {
        const opens = !popup.visible && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
        if (opens)
            popup.open()
        event.accepted = opens
    }

    background: ControlBackground {
        prominent: false
        hovered: root.hovered
        pressed: root.down

        FocusRing { shown: root.visualFocus }
    }

    contentItem: PopUpPickerText {
        model: root.model
        currentIndex: root.currentIndex
    }

    indicator: Symbol {
        x: root.width - width - 8
        y: Math.round((root.height - height) / 2)
        name: "chevron.up.chevron.down"
        size: 14
        color: AppColors.secondaryText
    }

    delegate: PopUpPickerItem {
        required property int index
        required property string modelData

        width: ListView.view ? ListView.view.width : implicitWidth
        text: modelData
        // The delegate lives inside its root: Qt 6.4 has no way to say so to the linter.
        // qmllint disable unqualified
        isCurrent: index === root.currentIndex
        highlighted: index === root.highlightedIndex
        // qmllint enable unqualified
    }

    popup: T.Popup {
        y: root.height + Spacing.tight
        width: Math.max(root.width, root.implicitContentWidth + root.tickWidth + 31)
        padding: 5
        margins: 6
        implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding

        contentItem: ListView {
            implicitHeight: contentHeight
            // The linter does not know the type of this, which is in a module of its own.
            // qmllint disable
            model: root.delegateModel
            // qmllint enable
            currentIndex: root.highlightedIndex
            interactive: contentHeight > height
            clip: interactive
        }

        background: PopupBackground {}

        enter: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 90 } }
        exit: Transition { NumberAnimation { property: "opacity"; to: 0; duration: 110 } }
    }
}
