import QtQuick
import Kestrowind.DesignSystem

// How the editor is used, and what it cannot do.
Notice {
    implicitHeight: textHeight
    leftPadding: Spacing.tight
    font: Typography.subheadline
    color: AppColors.secondaryText
    symbolColor: AppColors.tertiaryText
}
