import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

Row {
    id: root

    required property helperStatusFacts facts

    signal installRequested()
    signal uninstallRequested()

    spacing: Spacing.small

    PushButton {
        text: root.facts.installTitle
        prominent: root.facts.wantsInstall
        onClicked: root.installRequested()
    }

    PushButton {
        visible: text.length > 0
        text: root.facts.uninstallTitle
        onClicked: root.uninstallRequested()
    }
}
