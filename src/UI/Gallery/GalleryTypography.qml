import QtQuick
import Kestrowind.DesignSystem

GalleryCard {
    id: card

    title: "Type"

    component Sample: Text { color: AppColors.primaryText }

    Column {
        Sample { text: "Title 24"; font: Typography.title }
        Sample { text: "Title 20"; font: Typography.title2 }
        Sample { text: "Title 17"; font: Typography.title3 }
        Sample { text: "Callout 14"; font: Typography.callout }
        Sample { text: "Body 13"; font: Typography.body }
        Sample { text: "Footnote 12, secondary"; font: Typography.footnote; color: AppColors.secondaryText }
        Sample { text: "Caption 11, tertiary"; font: Typography.caption; color: AppColors.tertiaryText }
        Sample { text: "Section caption"; font: Typography.sectionCaption; color: AppColors.secondaryText }
    }

    Column {
        x: 170

        Repeater {
            model: ["1111", "2804", "7777"]

            TabularText { required property string modelData; text: modelData; font: Typography.title2 }
        }
        TabularText { text: "71.5°"; font: Typography.heroNumber; color: AppColors.temperatureColor(71.5) }
    }
}
