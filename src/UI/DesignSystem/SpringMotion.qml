import QtQuick
import Kestrowind.DesignSystem

// For a Behavior or a Transition: an interrupted movement starts again from where it is.
NumberAnimation {
    required property springTiming timing

    duration: timing.duration
    easing: timing.easing
}
