import QtQuick
import Kestrowind.DesignSystem

// What a setting is called, above what it means.
Column {
    id: root

    required property string title
    required property string subtitle

    spacing: Spacing.hair

    Text {
        width: root.width
        text: root.title
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Typography.body
        color: AppColors.primaryText
        Accessible.ignored: true
    }

    Text {
        width: root.width
        text: root.subtitle
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Typography.caption
        color: AppColors.secondaryText
        Accessible.ignored: true
    }
}
