#include "Platform/DurableFile.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(filesLog, "app.kestrowind.files", QtInfoMsg)

QString systemReason() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

std::expected<void, QString> syncFolder(const QString& folder) {
    const int descriptor =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return std::unexpected(systemReason());
    const bool synced = ::fsync(descriptor) == 0;
    const QString reason = synced ? QString() : systemReason();
    ::close(descriptor);
    if (!synced)
        return std::unexpected(reason);
    return {};
}

} // namespace

std::expected<void, QString> DurableFile::write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    // Unbuffered, because a failure to flush the buffer on commit goes unnoticed by QSaveFile, and
    // a full disk would then replace the file by the part of it that still fitted.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        file.write(content) != content.size() || !file.commit())
        return std::unexpected(file.errorString());
    // The file is there. Some folders cannot be synced, by their rights or their file system.
    if (const auto synced = syncFolder(QFileInfo(path).absolutePath()); !synced)
        qCDebug(filesLog).noquote() << "folder of" << path << "not synced:" << synced.error();
    return {};
}

std::expected<QString, QString> DurableFile::setAside(const QString& path, const QString& newName) {
    const QString folder = QFileInfo(path).absolutePath();
    const QString wanted = folder + u'/' + newName;
    QString target = wanted;
    for (int number = 2; QFileInfo::exists(target) || QFileInfo(target).isSymLink(); ++number)
        target = wanted + u'-' + QString::number(number);
    if (::rename(QFile::encodeName(path).constData(), QFile::encodeName(target).constData()) != 0)
        return std::unexpected(systemReason());
    if (const auto synced = syncFolder(folder); !synced)
        return std::unexpected(synced.error());
    return target;
}

} // namespace kestrowind
