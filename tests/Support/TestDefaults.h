#pragma once

#include "Platform/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace kestrowind {

/// A folder of its own with user defaults in it, gone at the end of the test.
class TestHome {
public:
    [[nodiscard]] QString path(const QString& name = {}) const { return m_folder.filePath(name); }

    [[nodiscard]] QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }
    void write(const QString& name, const QByteArray& content) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }

    /// The defaults as a process with these arguments would see them.
    [[nodiscard]] std::unique_ptr<UserDefaults> defaults(const QStringList& arguments = {}) const {
        return std::make_unique<UserDefaults>(
            arguments, [file = path(QStringLiteral("defaults.ini"))] {
                return std::make_unique<QSettings>(file, QSettings::IniFormat);
            });
    }

private:
    QTemporaryDir m_folder;
};

} // namespace kestrowind
