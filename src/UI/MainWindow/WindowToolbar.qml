import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.MainWindow

// The section picker, the preset bar and the caption on one surface with the title bar.
Item {
    id: root

    required property MainWindowModel model
    required property bool isContentBehind

    implicitHeight: column.height

    Rectangle {
        anchors.fill: parent
        color: AppColors.windowBackground
    }

    Rectangle {
        anchors.fill: parent
        color: Qt.alpha("white", AppColors.isDark ? 0.035 : 0.5)
    }

    Column {
        id: column

        width: parent.width
        topPadding: Spacing.medium
        bottomPadding: Spacing.small + Spacing.hair

        SegmentedPicker {
            anchors.horizontalCenter: parent.horizontalCenter
            label: qsTrId("mainWindow.sectionPicker.label")
            model: root.model.sections
            currentIndex: root.model.sectionIndex
            segmentPadding: Spacing.regular
            onSelected: index => root.model.selectSection(index)
        }

        Item { width: 1; height: Spacing.small }

        PresetPillsBar {
            width: parent.width
            model: root.model.pills
        }

        Item { width: 1; height: Spacing.tight }

        CaptionBar {
            width: parent.width
            model: root.model.caption
        }
    }

    Separator {
        anchors { left: parent.left; right: parent.right; top: parent.bottom }
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.bottom; topMargin: 1 }
        height: 6
        opacity: root.isContentBehind ? 1 : 0
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.alpha("black", AppColors.isDark ? 0.22 : 0.07) }
            GradientStop { position: 1; color: "transparent" }
        }

        Behavior on opacity { NumberAnimation { duration: 150 } }
    }
}
