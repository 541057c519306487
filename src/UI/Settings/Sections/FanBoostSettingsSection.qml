import QtQuick
import Kestrowind.Settings

SettingsSection {
    id: root

    required property FanBoostSettings model

    title: qsTrId("settings.fanBoost.sectionTitle")

    SettingsPickerRow {
        title: qsTrId("settings.fanBoost.temperatureSource.title")
        subtitle: qsTrId("settings.fanBoost.temperatureSource.subtitle")
        options: root.model.temperatureSources
        selection: root.model.temperatureSource
        onChosen: index => root.model.chooseTemperatureSource(index)
    }
}
