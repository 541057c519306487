import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// How the helper is, and what can be done about it; a spinner while something is being done.
Item {
    id: root

    required property helperStatusFacts facts
    required property HelperOperation operation

    implicitHeight: Math.max(frame.height, words.height, buttons.height)

    Item {
        id: frame

        width: 34
        height: 34
        y: Math.round((root.height - height) / 2)

        Symbol {
            anchors.centerIn: parent
            name: root.facts.symbolName
            size: 26
            color: AppColors.toneColor(root.facts.tone)
        }
    }

    SettingsRowLabel {
        id: words

        x: frame.width + Spacing.medium
        y: Math.round((root.height - height) / 2)
        width: root.width - x - Spacing.section - (root.operation.isWorking ? spinner.width : buttons.width)
        title: root.facts.title
        subtitle: root.facts.description
        font: Typography.weighted(Typography.body, Font.DemiBold)
        Accessible.role: Accessible.StaticText
        Accessible.name: title
        Accessible.description: subtitle
    }

    Spinner {
        id: spinner

        visible: root.operation.isWorking
        x: root.width - width
        y: Math.round((root.height - height) / 2)
        diameter: 18
        color: AppColors.secondaryText
        Accessible.role: Accessible.ProgressBar
        Accessible.name: qsTrId("settings.helper.workingSpinner")
    }

    Row {
        id: buttons

        visible: !root.operation.isWorking
        x: root.width - width
        y: Math.round((root.height - height) / 2)
        spacing: Spacing.small

        PushButton {
            text: root.facts.installTitle
            prominent: root.facts.wantsInstall
            onClicked: root.operation.install()
        }

        PushButton {
            visible: text.length > 0
            text: root.facts.uninstallTitle
            onClicked: root.operation.uninstall()
        }
    }
}
