pragma Singleton

import QtQuick

// Steps of a 4-point grid.
QtObject {
    readonly property int hair: 2
    readonly property int tight: 4
    readonly property int small: 8
    readonly property int medium: 12
    readonly property int regular: 16
    readonly property int section: 20
    readonly property int large: 24
    readonly property int huge: 32
}
