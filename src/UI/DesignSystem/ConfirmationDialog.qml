import QtQuick
import Kestrowind.DesignSystem

// Asks whether to do what cannot be undone: Return alone does not do it.
DialogPanel {
    destructive: true
    onAboutToShow: cancelButton.forceActiveFocus(Qt.TabFocusReason)
}
