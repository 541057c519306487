import QtQuick
import Kestrowind.DesignSystem

// What something is called, above what it means.
Column {
    id: root

    required property string title
    required property string subtitle
    property alias font: name.font

    spacing: Spacing.hair

    Label {
        id: name

        width: root.width
        text: root.title
        wrapMode: Text.Wrap
    }

    Label {
        width: root.width
        text: root.subtitle
        wrapMode: Text.Wrap
        font: Typography.caption
        color: AppColors.secondaryText
    }
}
