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

Q_LOGGING_CATEGORY(filesLog, "app.kestrowind.files", QtInfoMsg)

QString systemReason(int code = errno) {
    return QString::fromLocal8Bit(std::strerror(code));
}

/// Until what was written is on the medium.
bool syncFile(int descriptor) {
#ifdef F_FULLFSYNC
    // fsync leaves it in the drive's own cache here. Some file systems know no other.
    if (::fcntl(descriptor, F_FULLFSYNC) == 0)
        return true;
    if (errno != ENOTSUP && errno != EINVAL && errno != ENOTTY)
        return false;
#endif
    return ::fsync(descriptor) == 0;
}

/// What was renamed is in its place already. Some folders cannot be synced, by their rights or
/// their file system.
void syncFolderOf(const QString& path) {
    const QString folder = QFileInfo(path).absolutePath();
    const int descriptor =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0 || !syncFile(descriptor))
        qCDebug(filesLog).noquote() << "folder of" << path << "not synced:" << systemReason();
    if (descriptor >= 0)
        ::close(descriptor);
}

} // namespace

std::expected<QByteArray, QString> DurableFile::read(const QString& path, qsizetype largest) {
    // Before it is opened: a pipe waits there for somebody to write.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return std::unexpected(systemReason(EOPNOTSUPP));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(file.errorString());
    QByteArray content = file.read(largest + 1);
    if (file.error() != QFile::NoError)
        return std::unexpected(file.errorString());
    if (content.size() > largest)
        return std::unexpected(systemReason(EFBIG));
    return content;
}

std::expected<void, QString> DurableFile::write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    // Unbuffered, because a failure to flush the buffer on commit goes unnoticed by QSaveFile, and
    // a full disk would then replace the file by the part of it that still fitted.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        file.write(content) != content.size())
        return std::unexpected(file.errorString());
    // So does a failure to sync, and a power cut would then leave neither the old nor the new.
    if (!syncFile(file.handle()))
        return std::unexpected(systemReason());
    if (!file.commit())
        return std::unexpected(file.errorString());
    syncFolderOf(path);
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
    syncFolderOf(target);
    return target;
}

} // namespace kestrowind
