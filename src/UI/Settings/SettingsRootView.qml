import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// The settings, section below section.
Item {
    id: root

    required property SettingsModel model

    // Lines of text and their controls stay together in a wide window.
    readonly property real measure: 760

    implicitWidth: 820
    implicitHeight: stack.height + 2 * Spacing.medium

    Component.onCompleted: model.setView(root)

    Column {
        id: stack

        y: Spacing.medium
        width: Math.min(root.width - 2 * Spacing.medium, root.measure)
        anchors.horizontalCenter: parent.horizontalCenter

        HelperSettingsSection {
            width: parent.width
            model: root.model.helper
        }

        FanBoostSettingsSection {
            width: parent.width
            model: root.model.fanBoost
        }

        GeneralSettingsSection {
            width: parent.width
            model: root.model.general
        }

        AboutSettingsSection {
            width: parent.width
            version: root.model.version
            helper: root.model.helper
        }
    }
}
