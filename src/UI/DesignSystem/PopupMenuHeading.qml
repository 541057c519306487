import QtQuick
import Kestrowind.DesignSystem

// The title of a section of a PopupMenu; nothing to choose, and so no item of the toolkit's, which
// would be told as one.
Item {
    id: root

    property alias text: label.text

    implicitWidth: label.implicitWidth + 9 + 12
    implicitHeight: label.implicitHeight + 5 + 3
    Accessible.role: Accessible.Heading
    Accessible.name: text

    Label {
        id: label

        x: 9
        y: 5
        font: Typography.weighted(Typography.caption, Font.DemiBold)
        color: AppColors.tertiaryText
    }
}
