import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// A question over the window, which is dimmed and out of reach until it is answered. Escape is the
// way out. The owner shows it by a binding to visible and answers dismissed() by ending what the
// binding says.
T.Dialog {
    id: root

    property string message
    property string confirmText
    property string cancelText // none: there is nothing to decide
    property bool destructive: false
    readonly property Item confirmButton: confirm
    readonly property Item cancelButton: cancel
    default property alias body: extra.data

    // What it asks stays the same while it goes away.
    property string shownTitle

    signal confirmed()
    signal dismissed()

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) * 0.42) : 0
    width: 336
    height: column.height + topPadding + bottomPadding
    padding: Spacing.section
    modal: true
    dim: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    transformOrigin: T.Popup.Center
    onAboutToShow: {
        shownTitle = title
        before.remember(parent)
    }
    onAboutToHide: {
        before.giveBack()
        dismissed()
    }

    readonly property FocusMemory before: FocusMemory {}

    T.Overlay.modal: Rectangle {
        color: AppColors.scrim

        Behavior on opacity { NumberAnimation { duration: 160 } }
    }

    background: Item {
        SoftShadow {
            anchors.fill: parent
            anchors.margins: -2 * blurRadius
            blurRadius: 24
            offset: 10
            cornerRadius: Radius.banner
            opacity: AppColors.isDark ? 0.6 : 0.3
        }

        Rectangle {
            anchors.fill: parent
            radius: Radius.banner
            color: AppColors.popupBackground
            border.width: 1
            border.color: AppColors.popupBorder
        }
    }

    // qmllint disable deferred-property-id
    contentItem: FocusScope {
        // qmllint enable deferred-property-id
        focus: true
        AcceptKeys.onPressed: if (!root.destructive) root.confirmed()

        Column {
            id: column

            width: parent.width
            spacing: Spacing.small

            Heading {
                width: parent.width
                text: root.shownTitle
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                elide: Text.ElideRight
                maximumLineCount: 4
            }

            Label {
                width: parent.width
                visible: text.length > 0
                text: root.message
                font: Typography.subheadline
                color: AppColors.secondaryText
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Item {
                id: extra

                width: parent.width
                height: childrenRect.height
                visible: children.length > 0
            }

            Item { width: 1; height: Spacing.tight }

            Row {
                id: buttons

                readonly property real buttonWidth: cancel.visible ? (width - spacing) / 2 : width

                width: parent.width
                spacing: Spacing.small

                PushButton {
                    id: cancel

                    visible: root.cancelText.length > 0
                    width: buttons.buttonWidth
                    height: 30
                    text: root.cancelText
                    onClicked: root.close()
                }

                PushButton {
                    id: confirm

                    width: buttons.buttonWidth
                    height: 30
                    text: root.confirmText
                    prominent: true
                    destructive: root.destructive
                    onClicked: root.confirmed()
                }
            }
        }
    }

    enter: Transition {
        SpringMotion { property: "scale"; from: 0.92; to: 1; timing: Springs.release }
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 120 }
    }

    exit: Transition {
        SpringMotion { property: "scale"; to: 0.96; timing: Springs.hover }
        NumberAnimation { property: "opacity"; to: 0; duration: 110 }
    }
}
