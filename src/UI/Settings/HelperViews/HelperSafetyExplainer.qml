import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// Why a helper with an administrator's rights is nothing to be afraid of.
Column {
    id: root

    spacing: Spacing.small

    SymbolLabel {
        width: root.width
        symbolName: "checkmark.shield.fill"
        symbolColor: AppColors.success
        text: qsTrId("settings.helper.safety.title")
        font: Typography.weighted(Typography.body, Font.Medium)
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Notice {
        width: root.width
        color: AppColors.secondaryText
        symbolName: "arrow.up.to.line"
        text: qsTrId("settings.helper.safety.boostOnly")
    }

    Notice {
        width: root.width
        color: AppColors.secondaryText
        symbolName: "arrow.uturn.backward.circle"
        text: qsTrId("settings.helper.safety.automaticRelease")
    }

    Notice {
        width: root.width
        color: AppColors.secondaryText
        symbolName: "cpu"
        text: qsTrId("settings.helper.safety.macOSProtection")
    }
}
