import QtQuick
import Kestrowind.DesignSystem

// Asks for a line of text. The owner keeps the text: it answers edited(text).
DialogPanel {
    id: root

    required property string text
    required property string fieldLabel
    required property int longestText

    signal edited(string text)

    onAboutToShow: {
        field.text = text
        field.selectAll()
        field.forceActiveFocus(Qt.PopupFocusReason)
    }

    TextField {
        id: field

        width: parent.width
        label: root.fieldLabel
        placeholderText: root.fieldLabel
        maximumLength: root.longestText
        focus: true
        // However it was changed.
        onTextChanged: if (text !== root.text) root.edited(text)
    }
}
