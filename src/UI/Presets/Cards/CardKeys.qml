import QtQuick

// What the keyboard can do with a card besides what it does with a button: the menu, rename, delete,
// and with the command key (Ctrl elsewhere than on a Mac) move it.
QtObject {
    id: root

    signal menuRequested()
    signal renameRequested()
    signal deletionRequested()
    signal moveRequested(int columns, int rows)

    // Whether the key was one of ours.
    function handle(key: int, modifiers: int): bool {
        if (modifiers & Qt.ControlModifier)
            return move(key)
        switch (key) {
        case Qt.Key_F10:
            if (!(modifiers & Qt.ShiftModifier))
                return false
            menuRequested()
            return true
        case Qt.Key_Menu:
            menuRequested()
            return true
        case Qt.Key_F2:
            renameRequested()
            return true
        case Qt.Key_Delete:
        case Qt.Key_Backspace:
            deletionRequested()
            return true
        }
        return false
    }

    function move(key: int): bool {
        switch (key) {
        case Qt.Key_Left:
            moveRequested(-1, 0)
            return true
        case Qt.Key_Right:
            moveRequested(1, 0)
            return true
        case Qt.Key_Up:
            moveRequested(0, -1)
            return true
        case Qt.Key_Down:
            moveRequested(0, 1)
            return true
        }
        return false
    }
}
