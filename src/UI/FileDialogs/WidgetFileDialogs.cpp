#include "UI/FileDialogs/WidgetFileDialogs.h"

#include "UI/FileDialogs/SafeFileName.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

/// Whether everything in a folder can be looked at within a moment.
bool canBeListed(const QString& folder) {
    constexpr std::chrono::milliseconds moment(300);
    std::promise<bool> answer;
    auto answered = answer.get_future();
    // Left to itself: a drive that is gone may never answer, and nobody could wait for its end.
    std::thread([folder, answer = std::move(answer)]() mutable {
        const QFileInfoList entries =
            QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System);
        for (QFileInfo entry : entries)
            entry.stat();
        answer.set_value(!entries.isEmpty());
    }).detach();
    return answered.wait_for(moment) == std::future_status::ready && answered.get();
}

/// The first one that can be listed, and the last one if none can.
QString firstListed(const QStringList& folders) {
    const auto listed = std::ranges::find_if(folders, canBeListed);
    return listed == folders.end() ? folders.constLast() : *listed;
}

} // namespace

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
    QStringList folders{QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                        QDir::homePath(), QDir::tempPath()};
    if (!m_folder.isEmpty())
        folders.prepend(m_folder);
    m_dialog = new QFileDialog(nullptr, title, firstListed(folders));
    m_dialog->setNameFilter(u"%1 (*.%2)"_s.arg(kind.name, kind.suffix));
    return m_dialog;
}

void WidgetFileDialogs::open(QObject& owner, Chosen chosen) {
    QFileDialog* const dialog = m_dialog;
    QObject::connect(dialog, &QFileDialog::fileSelected, &owner,
                     [this, chosen = std::move(chosen)](const QString& path) {
                         if (chosen(path))
                             m_folder = QFileInfo(path).absolutePath();
                     });
    QObject::connect(dialog, &QFileDialog::finished, dialog, &QObject::deleteLater);
    QObject::connect(&owner, &QObject::destroyed, dialog, &QObject::deleteLater);
    // Our windows are no widgets: the dialog has to be told which one it belongs to.
    dialog->winId();
    dialog->windowHandle()->setTransientParent(QGuiApplication::focusWindow());
    dialog->open();
}

} // namespace kestrowind
