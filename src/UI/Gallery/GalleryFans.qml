import QtQuick
import Kestrowind.DesignSystem

GalleryCard {
    title: "Fans"

    Row {
        y: 4
        spacing: 36

        Repeater {
            model: [0.0, 0.42, 1.0]

            Item {
                id: gauge

                required property real modelData

                width: 110
                height: 110

                FanGaugeArcs {
                    diameter: 110
                    lineWidth: 8
                    gapDegrees: 90
                    fraction: gauge.modelData
                }
                TabularText {
                    anchors.centerIn: parent
                    text: Math.round(gauge.modelData * 6550)
                    font: Typography.gaugeNumber
                }
                SpinningFanBlades {
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: 84
                    diameter: 24
                    revolutionsPerSecond: 2.2 * gauge.modelData
                    fill: gauge.modelData > 0 ? SpinningFanBlades.Airflow : SpinningFanBlades.Parked
                }
            }
        }
    }

    Row {
        y: 120
        spacing: Spacing.large

        SpinningFanMark { diameter: 44; anchors.verticalCenter: parent.verticalCenter }
        SpinningFanIndicator { diameter: 22; revolutionsPerSecond: 1; anchors.verticalCenter: parent.verticalCenter }
        FanGlyph { side: 20; color: AppColors.secondaryText; anchors.verticalCenter: parent.verticalCenter }
        Symbol { name: "fanblades"; size: 16; anchors.verticalCenter: parent.verticalCenter }
        Symbol { name: "fanblades.slash"; size: 32; anchors.verticalCenter: parent.verticalCenter }
    }
}
