import QtQuick
import Kestrowind.DesignSystem

// Says what could not be done. Its one button, Return and Escape take it away.
DialogPanel {
    id: root

    required property FailureNotice notice

    visible: notice.isShown
    title: notice.title
    message: notice.message
    confirmText: qsTrId("shared.dialog.ok")
    onConfirmed: close()
    onDismissed: notice.dismiss()
    onAboutToShow: confirmButton.forceActiveFocus(Qt.TabFocusReason)
}
