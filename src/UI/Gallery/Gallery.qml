import QtQuick
import Kestrowind.DesignSystem

// Everything of the design system on one page, to be looked at.
Window {
    id: window

    width: 860
    height: 760
    visible: true
    color: AppColors.windowBackground

    Column {
        anchors.fill: parent
        anchors.margins: Spacing.section
        spacing: Spacing.regular

        SegmentedPicker {
            id: picker

            anchors.horizontalCenter: parent.horizontalCenter
            label: "Section"
            model: ListModel {
                ListElement { title: "Dashboard"; symbolName: "gauge.with.dots.needle.50percent" }
                ListElement { title: "Curves"; symbolName: "chart.xyaxis.line" }
                ListElement { title: "Presets"; symbolName: "square.stack.3d.up" }
                ListElement { title: "Settings"; symbolName: "gearshape" }
            }
            onSelected: index => currentIndex = index
        }

        Row {
            spacing: Spacing.regular

            GalleryFans { width: 480; height: 214 }
            GalleryTypography { width: 324; height: 214 }
        }

        Row {
            spacing: Spacing.regular

            GalleryControls { width: 480; height: 250 }
            GalleryColors { width: 324; height: 250 }
        }

        GallerySymbols { width: parent.width; height: 176 }
    }
}
