import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// An ActionButton that is one of several siblings, of which one is chosen. The owner answers clicked()
// by setting isChosen. In Qt 6.4 a button's class and its own state are all that assistive technology
// is told of either: what is attached to it is lost.
T.RadioButton {
    id: root

    required property bool isChosen

    function press(): void {
        if (enabled)
            clicked()
    }

    hoverEnabled: true
    checked: isChosen
    // The click has set it; what counts may be something else.
    onToggled: checked = Qt.binding(() => root.isChosen)
    Accessible.name: text
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()
    AcceptKeys.onPressed: press()
}
