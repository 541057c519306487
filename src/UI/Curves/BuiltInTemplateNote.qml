import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Curves

// Says why the curve cannot be edited, and offers a copy that can.
Item {
    id: root

    required property CurvesModel model

    implicitHeight: Math.max(note.height, customize.height) + 2 * Spacing.medium

    CardBackground {
        anchors.fill: parent
        cornerRadius: Radius.banner
        tint: Qt.alpha(AppColors.accent, 0.10)
    }

    Symbol {
        id: icon

        x: Spacing.regular
        anchors.verticalCenter: parent.verticalCenter
        name: "info.circle.fill"
        size: 18
        color: AppColors.accent
    }

    Text {
        id: note

        anchors { left: icon.right; leftMargin: 10; right: customize.left; rightMargin: Spacing.regular }
        anchors.verticalCenter: parent.verticalCenter
        text: root.model.builtInNote
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Typography.body
        color: AppColors.primaryText
    }

    PushButton {
        id: customize

        anchors { right: parent.right; rightMargin: Spacing.medium; verticalCenter: parent.verticalCenter }
        text: qsTrId("curves.customizeButton")
        prominent: true
        enabled: root.model.canAddPreset
        toolTip: root.model.customizeHelp
        onClicked: root.model.duplicateForEditing()
    }
}
