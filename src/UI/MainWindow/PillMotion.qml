import QtQuick
import Kestrowind.DesignSystem

// How pills enter, leave and change places. What is moved while it enters ends fully there, too.
Transition {
    id: root

    required property bool appears
    // One that enters is in its place at once.
    property bool travels: true

    SpringMotion { properties: root.travels ? "x" : ""; timing: Springs.collection }
    SpringMotion { property: "opacity"; to: root.appears ? 1 : 0; timing: Springs.collection }
    SpringMotion { property: "entrance"; to: root.appears ? 1 : 0.85; timing: Springs.collection }
}
