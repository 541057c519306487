#pragma once

#include "Platform/SystemInformation.h"

#include <QHash>
#include <QSet>

namespace kestrowind {

/// A machine whose every answer a test sets.
class FakeSystemInformation final : public SystemInformation {
public:
    QHash<QByteArray, QString> sysctlTexts;
    QHash<QString, QString> bundleTexts;
    QHash<QString, QString> resources;
    QSet<QString> files;
    bool isJobSwitchedOff = false; ///< in the system's settings
    QString supportFolder;

    std::optional<QString> sysctl(const QByteArray& name) const override {
        return found(sysctlTexts, name);
    }
    QString operatingSystemVersion() const override {
        return QStringLiteral("Version 15.5 (Build 24F74)");
    }
    std::optional<QString> bundleText(const QString& key) const override {
        return found(bundleTexts, key);
    }
    std::optional<QString> bundleIdentifier() const override {
        return QStringLiteral("app.kestrowind");
    }
    std::optional<QString> bundleResource(const QString& fileName) const override {
        return found(resources, fileName);
    }
    bool fileExists(const QString& machinePath) const override {
        return files.contains(machinePath);
    }
    bool needsApproval(const QString& jobPath) const override {
        return isJobSwitchedOff && jobPath.endsWith(u".helper.plist");
    }
    QString applicationSupportFolder() const override { return supportFolder; }

private:
    template <class Key>
    static std::optional<QString> found(const QHash<Key, QString>& texts, const Key& key) {
        const auto text = texts.constFind(key);
        return text == texts.cend() ? std::nullopt : std::optional(*text);
    }
};

} // namespace kestrowind
