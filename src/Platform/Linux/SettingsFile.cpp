#include "Platform/Linux/SettingsFile.h"

#include "Platform/DurableFile.h"

#include <QFileInfo>
#include <QLoggingCategory>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(defaultsLog, "app.kestrowind.defaults", QtInfoMsg)

/// A hundred times what the application stores, and read within a tenth of a second.
constexpr qint64 largestSettings = 8 * 1024 * 1024; ///< bytes

} // namespace

std::unique_ptr<QSettings> openSettingsFile(const QString& path) {
    const QFileInfo info(path);
    QString opened = path;
    if (info.exists() && (!info.isFile() || info.size() > largestSettings)) {
        const auto kept = DurableFile::setAside(path, info.fileName() + u".unreadable"_s);
        qCWarning(defaultsLog).noquote()
            << "cannot read" << path << "which"
            << (kept ? u"is now "_s + *kept : u"stays: "_s + kept.error());
        // Where nothing can be read or written, and nothing waits.
        if (!kept)
            opened += u"/none"_s;
    }
    return std::make_unique<QSettings>(opened, QSettings::IniFormat);
}

} // namespace kestrowind
