import QtQuick
import Kestrowind.DesignSystem
import Kestrowind.Presets

// The questions that the presets screen asks.
Item {
    id: root

    required property PresetsModel model

    TextFieldDialog {
        visible: root.model.isRenaming
        title: qsTrId("presets.rename.title")
        fieldLabel: qsTrId("presets.rename.fieldLabel")
        confirmText: qsTrId("presets.rename.confirm")
        cancelText: qsTrId("presets.dialog.cancel")
        text: root.model.renameDraftName
        longestText: root.model.longestName
        onEdited: text => root.model.renameDraftName = text
        onConfirmed: root.model.commitRename()
        onDismissed: root.model.cancelRename()
    }

    ConfirmationDialog {
        visible: root.model.isDeleting
        title: root.model.deletionTitle
        message: qsTrId("presets.delete.message")
        confirmText: qsTrId("presets.delete.confirm")
        cancelText: qsTrId("presets.dialog.cancel")
        onConfirmed: root.model.confirmDeletion()
        onDismissed: root.model.cancelDeletion()
    }

    MessageDialog { notice: root.model.exchange.failure }
}
