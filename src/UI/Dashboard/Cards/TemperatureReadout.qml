import QtQuick
import Kestrowind.DesignSystem

// A temperature as the card's large number.
TabularText {
    font: Typography.heroNumber
    Accessible.ignored: true
}
