import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// How the helper is, and what can be done about it; a spinner while something is being done.
Item {
    id: root

    required property HelperSettings model

    readonly property helperStatusFacts facts: model.status

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

    Column {
        id: words

        x: frame.width + Spacing.medium
        y: Math.round((root.height - height) / 2)
        width: root.width - x - Spacing.section - (root.model.isWorking ? spinner.width : buttons.width)
        spacing: Spacing.hair
        Accessible.role: Accessible.StaticText
        Accessible.name: root.facts.title
        Accessible.description: root.facts.description

        Text {
            width: parent.width
            text: root.facts.title
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.weighted(Typography.body, Font.DemiBold)
            color: AppColors.primaryText
            Accessible.ignored: true
        }

        Text {
            width: parent.width
            text: root.facts.description
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Typography.caption
            color: AppColors.secondaryText
            Accessible.ignored: true
        }
    }

    Spinner {
        id: spinner

        visible: root.model.isWorking
        x: root.width - width
        y: Math.round((root.height - height) / 2)
        diameter: 18
        color: AppColors.secondaryText
        Accessible.role: Accessible.ProgressBar
        Accessible.name: qsTrId("settings.helper.workingSpinner")
    }

    HelperActionButtons {
        id: buttons

        visible: !root.model.isWorking
        x: root.width - width
        y: Math.round((root.height - height) / 2)
        facts: root.facts
        onInstallRequested: root.model.install()
        onUninstallRequested: root.model.uninstall()
    }
}
