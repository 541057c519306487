import QtQuick
import Kestrowind.DesignSystem

// How the items of a list or grid, which scale by their `entrance`, enter, leave and change places. What is
// moved while it enters ends fully there, too.
Transition {
    id: root

    required property bool appears
    // One that enters is in its place at once.
    property bool travels: true
    // The entrance of one that is not there yet, or no more.
    property real least: 0.92

    SpringMotion { properties: root.travels ? "x,y" : ""; timing: Springs.collection }
    SpringMotion { property: "opacity"; to: root.appears ? 1 : 0; timing: Springs.collection }
    SpringMotion { property: "entrance"; to: root.appears ? 1 : root.least; timing: Springs.collection }
}
