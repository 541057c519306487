#pragma once

#include "UI/DesignSystem/FailureNotice.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class FileDialogs;
class TelemetryStore;

/// Saves the history as a table. Belongs to the main thread.
class HistoryExport final : public QObject {
    Q_OBJECT
    Q_PROPERTY(kestrowind::FailureNotice* failure READ failure CONSTANT FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("belongs to DashboardModel")

public:
    /// Both must outlive this.
    HistoryExport(const TelemetryStore& telemetry, FileDialogs& fileDialogs);

    /// Asks where to, and writes what is known by then.
    Q_INVOKABLE void save();
    /// Why a file could not be written.
    [[nodiscard]] FailureNotice* failure() { return &m_failure; }

private:
    /// False when it failed, which was told.
    bool write(const QString& path);

    const TelemetryStore& m_telemetry;
    FileDialogs& m_fileDialogs;
    FailureNotice m_failure;
};

} // namespace kestrowind
