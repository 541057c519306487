#include "Simulator/Hardware/ProfileLibrary.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

const QString libraryFolder = u":/profiles"_s;

// Far above any sensible profile; what is larger is another kind of file.
constexpr qint64 largestFile = 16 * 1024 * 1024;

} // namespace

QStringList ProfileLibrary::names() {
    QStringList names;
    for (const QFileInfo& file : QDir(libraryFolder).entryInfoList({u"*.json"_s}, QDir::Files))
        names << file.completeBaseName();
    return names;
}

std::expected<MachineProfile, std::string> ProfileLibrary::load(const QString& nameOrFile) {
    const auto failure = [&nameOrFile](const QString& why) {
        return std::unexpected(u"profile %1: %2"_s.arg(nameOrFile, why).toStdString());
    };
    const bool isName = names().contains(nameOrFile);
    const QFileInfo info(isName ? u"%1/%2.json"_s.arg(libraryFolder, nameOrFile) : nameOrFile);
    if (!info.isFile())
        return failure(u"neither a file nor one of %1"_s.arg(names().join(u", "_s)));
    if (info.size() > largestFile)
        return failure(u"the file is too large"_s);
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString());
    auto profile = parseMachineProfile(file.readAll().toStdString());
    if (!profile)
        return failure(QString::fromStdString(profile.error()));
    return profile;
}

} // namespace kestrowind
