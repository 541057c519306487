#include "UI/FileDialogs/WidgetFileDialogs.h"

#include "UI/FileDialogs/SafeFileName.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QWindow>

namespace kestrowind {

using namespace Qt::StringLiterals;

WidgetFileDialogs::~WidgetFileDialogs() {
    delete m_dialog;
}

void WidgetFileDialogs::askForSave(QObject& owner, const QString& title, const Kind& kind,
                                   const QString& fileName, Chosen chosen) {
    QFileDialog* dialog = makeDialog(title, kind);
    if (!dialog)
        return;
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(kind.suffix);
    dialog->selectFile(safeFileName(fileName) + u'.' + kind.suffix);
    open(owner, std::move(chosen));
}

void WidgetFileDialogs::askForOpen(QObject& owner, const QString& title, const Kind& kind,
                                   Chosen chosen) {
    QFileDialog* dialog = makeDialog(title, kind);
    if (!dialog)
        return;
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    open(owner, std::move(chosen));
}

QFileDialog* WidgetFileDialogs::makeDialog(const QString& title, const Kind& kind) {
    if (m_dialog)
        return nullptr;
    const QString folder = m_folder.isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                               : m_folder;
    m_dialog = new QFileDialog(nullptr, title, folder);
    m_dialog->setNameFilter(u"%1 (*.%2)"_s.arg(kind.name, kind.suffix));
    return m_dialog;
}

void WidgetFileDialogs::open(QObject& owner, Chosen chosen) {
    QFileDialog* const dialog = m_dialog;
    QObject::connect(dialog, &QFileDialog::fileSelected, &owner,
                     [this, chosen = std::move(chosen)](const QString& path) {
                         m_folder = QFileInfo(path).absolutePath();
                         chosen(path);
                     });
    QObject::connect(dialog, &QFileDialog::finished, dialog, &QObject::deleteLater);
    QObject::connect(&owner, &QObject::destroyed, dialog, &QObject::deleteLater);
    // Our windows are no widgets: the dialog has to be told which one it belongs to.
    dialog->winId();
    dialog->windowHandle()->setTransientParent(QGuiApplication::focusWindow());
    dialog->open();
}

} // namespace kestrowind
