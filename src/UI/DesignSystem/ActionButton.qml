import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// What every button answers to besides the pointer and the space bar: Return, Enter, and what assistive
// technology does with it.
T.AbstractButton {
    id: root

    function press(): void {
        if (enabled)
            clicked()
    }

    hoverEnabled: true
    Accessible.name: text
    Accessible.onPressAction: press()
    AcceptKeys.onPressed: press()
}
