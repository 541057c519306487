import QtQuick
import Kestrowind.DesignSystem

// A text above a place, or below it where there is no room above; always inside the bounds.
Item {
    id: root

    required property point anchorPoint
    required property rect bounds
    required property real distance
    required property string text
    property bool isQuiet: false

    readonly property real highest: anchorPoint.y - distance - height

    width: label.implicitWidth + 2 * 10
    height: label.implicitHeight + 2 * 5
    x: Math.round(Math.max(bounds.x, Math.min(anchorPoint.x - width / 2, bounds.x + bounds.width - width)))
    y: Math.round(highest >= bounds.y ? highest : anchorPoint.y + distance)

    PopupBackground {
        anchors.fill: parent
        radius: Radius.control
        opacity: root.isQuiet ? 0.88 : 1
    }

    TabularText {
        id: label

        anchors.centerIn: parent
        text: root.text
        font: root.isQuiet ? Typography.caption : Typography.weighted(Typography.subheadline, Font.Medium)
        color: root.isQuiet ? AppColors.secondaryText : AppColors.primaryText
    }
}
