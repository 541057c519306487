import QtQuick
import Kestrowind.DesignSystem

GalleryCard {
    title: "Colours"

    Column {
        spacing: Spacing.small

        component Swatch: Row {
            id: swatch

            required property string name
            required property color value

            spacing: Spacing.small

            Rectangle { width: 14; height: 14; radius: 7; color: swatch.value }
            Text { text: swatch.name; font: Typography.body; color: swatch.value }
        }

        Swatch { name: "accent"; value: AppColors.accent }
        Swatch { name: "warning"; value: AppColors.warning }
        Swatch { name: "danger"; value: AppColors.danger }
        Swatch { name: "success"; value: AppColors.success }
        Swatch { name: "cpu"; value: AppColors.cpuSeries }
        Swatch { name: "gpu"; value: AppColors.gpuSeries }
    }

    Row {
        x: 110

        Repeater {
            model: 12

            Rectangle {
                required property int index

                width: 14
                height: 100
                color: AppColors.temperatureColor(40 + index * 5)
            }
        }
    }

    Rectangle {
        x: 110
        y: 112
        width: 168
        height: 8
        radius: 4
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: AppColors.fanGradientStart }
            GradientStop { position: 1; color: AppColors.fanGradientEnd }
        }
    }
}
