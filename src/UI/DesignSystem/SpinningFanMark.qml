import QtQuick
import Kestrowind.DesignSystem

// Something is being waited for.
SpinningFanBlades {
    revolutionsPerSecond: 1 / 3.6
    fill: SpinningFanBlades.Airflow
}
