#pragma once

#include "Platform/LoginItem.h"

#include <QStringList>

#include <optional>

namespace kestrowind {

/// The login item of a free desktop: an entry in the user's autostart folder that starts this very
/// program, hidden.
class AutostartEntry final : public LoginItem {
public:
    /// The entry's file, and the command that it is for, the program's absolute path first.
    AutostartEntry(QString file, QStringList command);

    /// For this program, where the desktop looks for the current user's entries.
    [[nodiscard]] static std::unique_ptr<AutostartEntry> ofThisApplication();

    /// There is an entry, nobody has switched it off, and it starts this program.
    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] std::expected<void, QString> registerApplication() override;
    [[nodiscard]] std::expected<void, QString> unregisterApplication() override;

    /// The value of an entry's Exec for a command, and back; absent for what is no such value.
    [[nodiscard]] static QString execValue(const QStringList& command);
    [[nodiscard]] static std::optional<QStringList> commandOf(const QString& execValue);

private:
    [[nodiscard]] std::unexpected<QString> failure(const QString& reason) const;

    QString m_file;
    QStringList m_command;
};

} // namespace kestrowind
