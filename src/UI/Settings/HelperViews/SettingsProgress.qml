import QtQuick
import Kestrowind.DesignSystem

// A small spinner and what is being done.
Item {
    id: root

    required property string text

    implicitHeight: Math.max(spinner.height, caption.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Spinner {
        id: spinner

        y: Math.round((root.height - height) / 2)
        diameter: 16
        color: AppColors.secondaryText
    }

    Label {
        id: caption

        x: spinner.width + Spacing.small
        y: Math.round((root.height - height) / 2)
        width: root.width - x
        text: root.text
        wrapMode: Text.Wrap
        font: Typography.caption
        color: AppColors.secondaryText
    }
}
