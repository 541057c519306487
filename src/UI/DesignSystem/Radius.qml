pragma Singleton

import QtQuick

QtObject {
    readonly property int small: 5
    readonly property int control: 7
    readonly property int popup: 9
    readonly property int banner: 12
    readonly property int card: 16
}
