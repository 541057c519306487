import QtQuick
import Kestrowind.DesignSystem

// Something is being done; set diameter and revolutionsPerSecond.
SpinningFanBlades {
    fill: SpinningFanBlades.Accent
}
