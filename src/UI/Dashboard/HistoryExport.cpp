#include "UI/Dashboard/HistoryExport.h"

#include "Core/HistoryTable.h"
#include "Core/LocalizedText.h"
#include "Core/TelemetryStore.h"
#include "Platform/DurableFile.h"
#include "Platform/FileDialogs.h"

#include <QDateTime>

namespace kestrowind {

using namespace Qt::StringLiterals;

HistoryExport::HistoryExport(const TelemetryStore& telemetry, FileDialogs& fileDialogs)
    : m_telemetry(telemetry)
    , m_fileDialogs(fileDialogs) {}

void HistoryExport::save() {
    const QString now = QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH.mm"_s);
    m_fileDialogs.askForSave(
        *this, localized("dashboard.history.save.title"),
        {.name = localized("dashboard.history.save.fileKind"), .suffix = u"csv"_s},
        localized("dashboard.history.save.fileName").arg(now),
        [this](const QString& path) { return write(path); });
}

bool HistoryExport::write(const QString& path) {
    const auto written = DurableFile::write(path, historyTable(m_telemetry.history()));
    if (!written)
        m_failure.show(localized("dashboard.history.save.failed"), written.error());
    return written.has_value();
}

} // namespace kestrowind
