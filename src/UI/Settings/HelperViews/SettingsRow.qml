import QtQuick
import Kestrowind.DesignSystem

// One row of a SettingsSection, as high as what it holds; a hairline sets it off from the row above.
Item {
    id: root

    default property alias content: body.data

    width: parent ? parent.width : 0
    implicitHeight: body.implicitHeight + 2 * Spacing.medium
    height: implicitHeight

    Separator {
        visible: root.y > 0
        x: Spacing.regular
        width: root.width - Spacing.regular
    }

    Item {
        id: body

        x: Spacing.regular
        y: Spacing.medium
        width: root.width - 2 * Spacing.regular
        implicitHeight: childrenRect.height
    }
}
