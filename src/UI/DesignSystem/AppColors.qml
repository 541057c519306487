pragma Singleton

import QtQuick
import Kestrowind.DesignSystem

ScenePalette {
    // Reads isDark so that a binding that calls this follows the colour scheme.
    function temperatureColor(celsius: real): color {
        return temperatureColorFor(celsius, isDark)
    }

    // For marks that carry white text in both schemes.
    function temperatureLabelColor(celsius: real): color {
        return temperatureColorFor(celsius, false)
    }

    function toneColor(tone: int): color {
        switch (tone) {
        case MessageTone.Accent:
            return accent
        case MessageTone.Good:
            return success
        case MessageTone.Warning:
            return warning
        default:
            return secondaryText
        }
    }
}
