import QtQuick
import Kestrowind.DesignSystem

Item {
    id: root

    required property string symbolName
    required property string text

    implicitHeight: label.height
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Symbol {
        x: Spacing.tight
        y: Math.round((Typography.subheadline.pixelSize * 1.25 - height) / 2)
        name: root.symbolName
        size: 16
        color: AppColors.tertiaryText
    }

    Text {
        id: label

        x: Spacing.tight + 16 + Spacing.small
        width: root.width - x
        text: root.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Typography.subheadline
        color: AppColors.secondaryText
        Accessible.ignored: true
    }
}
