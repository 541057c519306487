import QtQuick
import Kestrowind.DesignSystem

// Above a group of controls.
Text {
    textFormat: Text.PlainText
    font: Typography.sectionCaption
    color: AppColors.secondaryText
    elide: Text.ElideRight
}
