import QtQuick
import Kestrowind.DesignSystem

// Asks whether to do what cannot be undone. Return does it: the dialog comes only when asked for.
DialogPanel {
    destructive: true
    onAboutToShow: confirmButton.forceActiveFocus(Qt.TabFocusReason)
}
