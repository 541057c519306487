#pragma once

#include <QString>

#include <expected>

namespace kestrowind {

/// Whether the system starts the application when the user logs in. What it says is the system's
/// own state, which the user may change elsewhere at any time: ask again rather than remember.
/// Belongs to the main thread.
class LoginItem {
public:
    LoginItem() = default;
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// Added, but switched off in the system's settings, where alone it can be allowed again.
    [[nodiscard]] virtual bool needsApproval() const { return false; }
    /// Adds the application to what is started at login, or takes it out. The error is the system's
    /// reason, for people.
    [[nodiscard]] virtual std::expected<void, QString> registerApplication() = 0;
    [[nodiscard]] virtual std::expected<void, QString> unregisterApplication() = 0;
};

} // namespace kestrowind
