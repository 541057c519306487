import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Settings

// Something that is not as it should be; there only while it has a text.
SettingsRow {
    id: root

    property string text
    property string symbolName: "exclamationmark.circle.fill"
    property alias color: notice.color
    property alias symbolColor: notice.symbolColor

    visible: text.length > 0

    Notice {
        id: notice

        width: parent.width
        symbolName: root.symbolName
        text: root.text
        Accessible.role: Accessible.AlertMessage
    }
}
