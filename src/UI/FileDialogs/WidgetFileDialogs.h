#pragma once

#include "Platform/FileDialogs.h"

#include <QPointer>

class QFileDialog;

namespace kestrowind {

/// The toolkit's file dialog: the system's own where its desktop has one, otherwise one that needs
/// nothing of the desktop. Needs a QApplication.
class WidgetFileDialogs final : public FileDialogs {
public:
    ~WidgetFileDialogs() override;

    void askForSave(QObject& owner, const QString& title, const Kind& kind, const QString& fileName,
                    Chosen chosen) override;
    void askForOpen(QObject& owner, const QString& title, const Kind& kind, Chosen chosen) override;

private:
    /// Null while one is open.
    QFileDialog* makeDialog(const QString& title, const Kind& kind);
    void open(QObject& owner, Chosen chosen);

    QPointer<QFileDialog> m_dialog;
    QString m_folder; ///< of the last file that was written or read; empty before
};

} // namespace kestrowind
