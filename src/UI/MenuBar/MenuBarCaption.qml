import QtQuick
import Kestrowind.DesignSystem

// Above a group of controls.
Label {
    font: Typography.sectionCaption
    color: AppColors.secondaryText
    elide: Text.ElideRight
}
