import QtQuick
import Kestrowind.DesignSystem

// A text as it is written, never taken for markup. Assistive technology hears of it from what it is a
// part of.
Text {
    textFormat: Text.PlainText
    font: Typography.body
    color: AppColors.primaryText
}
