#include "Platform/Linux/LinuxSystemInformation.h"

#include "Platform/BundleInformation.h"
#include "Simulator/Link/SimulatedMac.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QSysInfo>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

QString fromPath(const std::filesystem::path& path) {
    return QFile::decodeName(path.c_str());
}

QHash<QString, QString> readMachineTexts() {
    QHash<QString, QString> texts;
    const auto root = SimulatedMac::root().value_or(SimulatedMac::nowhere);
    QFile file(fromPath(SimulatedMac::systemInformationFile(root)));
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (entry->isString())
            texts.insert(entry.key(), entry->toString());
    }
    return texts;
}

} // namespace

LinuxSystemInformation::LinuxSystemInformation()
    : m_machineTexts(readMachineTexts()) {}

QString LinuxSystemInformation::machinePath(const QString& path) {
    const auto root = SimulatedMac::root().value_or(SimulatedMac::nowhere);
    return fromPath(SimulatedMac::systemPath(root, path.toStdString()));
}

std::optional<QString> LinuxSystemInformation::sysctl(const QByteArray& name) const {
    const auto found = m_machineTexts.constFind(QString::fromUtf8(name));
    return found == m_machineTexts.cend() ? std::nullopt : std::optional(*found);
}

QString LinuxSystemInformation::operatingSystemVersion() const {
    return m_machineTexts.value(u"osVersion"_s, QSysInfo::prettyProductName());
}

std::optional<QString> LinuxSystemInformation::bundleText(const QString& key) const {
    if (key == "CFBundleShortVersionString"_L1)
        return QString::fromLatin1(BundleInformation::shortVersion);
    if (key == "CFBundleVersion"_L1)
        return QString::fromLatin1(BundleInformation::buildNumber);
    return std::nullopt;
}

std::optional<QString> LinuxSystemInformation::bundleIdentifier() const {
    return QString::fromLatin1(BundleInformation::identifier);
}

std::optional<QString> LinuxSystemInformation::bundleResource(const QString& fileName) const {
    const QString path =
        QCoreApplication::applicationDirPath() + u"/../share/kestrowind/"_s + fileName;
    return QFileInfo(path).isFile() ? std::optional(QFileInfo(path).canonicalFilePath())
                                    : std::nullopt;
}

bool LinuxSystemInformation::fileExists(const QString& path) const {
    return QFileInfo::exists(machinePath(path));
}

QString LinuxSystemInformation::applicationSupportFolder() const {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Kestrowind"_s;
}

} // namespace kestrowind
