import QtQuick
import QtQuick.Templates as T
import Kestrowind.DesignSystem

// One command of a PopupMenu; checkable ones show a tick when checked.
T.MenuItem {
    id: root

    property string symbolName
    property bool destructive: false

    function choose(): void {
        if (enabled)
            triggered()
    }

    readonly property bool lit: highlighted && enabled
    readonly property color textColor: lit ? AppColors.onAccent
                                     : destructive ? AppColors.danger : AppColors.primaryText
    // Also where there is no tick: texts stand below those of checkable siblings.
    property bool hasTickColumn: checkable
    readonly property real tickWidth: hasTickColumn ? 18 : 0

    font: Typography.body
    leftPadding: 9 + tickWidth
    rightPadding: 12
    topPadding: 4
    bottomPadding: 4
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    width: menu ? menu.availableWidth : implicitWidth
    opacity: enabled ? 1 : 0.45
    Accessible.name: text
    Accessible.onPressAction: choose()
    AcceptKeys.onPressed: choose()

    background: Rectangle {
        radius: Radius.small
        color: AppColors.accentFill
        visible: root.lit
    }

    contentItem: SymbolLabel {
        text: root.text
        symbolName: root.symbolName
        font: root.font
        spacing: 8
        color: root.textColor
        symbolColor: root.lit || root.destructive ? root.textColor : AppColors.secondaryText
    }

    indicator: Symbol {
        x: 7
        y: Math.round((root.height - height) / 2)
        visible: root.checkable && root.checked
        name: "checkmark"
        size: 15
        color: root.textColor
    }
    arrow: null
}
