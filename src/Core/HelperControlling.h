#pragma once

#include "Shared/HelperShared/HelperStatus.h"

#include <QCoroTask>
#include <QObject>
#include <QString>

#include <expected>
#include <optional>
#include <vector>

namespace kestrowind {

enum class HelperState {
    notInstalled, ///< one of the two installed files is missing
    installed,
    unreachable, ///< the files are there, but the last message failed at the connection
};

/// The state's name, for logs and readings.
[[nodiscard]] QString text(HelperState state);

/// Why the helper could not be installed.
struct InstallError {
    enum class Kind {
        adminScriptFailed, ///< message is the runner's standard error
        resourcesMissing,  ///< the application's bundle lacks the helper or its job description
        launchFailed,      ///< message is why the runner could not be started
    };
    Kind kind = Kind::resourcesMissing;
    QString message = {};

    /// In the user's language.
    [[nodiscard]] QString localizedDescription() const;

    bool operator==(const InstallError&) const = default;
};

/// The application's link to the privileged helper. Belongs to the main thread. No call ever fails
/// with an error but `install`: an absent, silent or broken helper yields nothing.
class HelperControlling : public QObject {
    Q_OBJECT

public:
    using Targets = std::vector<double>; ///< revolutions per minute, in fan order

    ~HelperControlling() override;

    [[nodiscard]] virtual HelperState state() const = 0;
    /// The last status that moved phase, error or version; its numbers may be older than that.
    [[nodiscard]] virtual std::optional<HelperStatus> lastStatus() const = 0;
    /// Derives `state` from the installed files again.
    virtual void refreshInstallState() = 0;

    /// The targets that the helper now applies.
    [[nodiscard]] virtual QCoro::Task<std::optional<Targets>> setTargets(Targets targets) = 0;
    [[nodiscard]] virtual QCoro::Task<void> releaseControl() = 0;
    [[nodiscard]] virtual QCoro::Task<void> shutDownDaemon() = 0;
    [[nodiscard]] virtual QCoro::Task<std::optional<HelperStatus>> fetchStatus() = 0;
    [[nodiscard]] virtual QCoro::Task<std::expected<void, InstallError>> install() = 0;
    [[nodiscard]] virtual QCoro::Task<void> uninstall() = 0;

    /// An unreachable helper counts as installed.
    [[nodiscard]] bool isInstalled() const { return state() != HelperState::notInstalled; }
    /// False while no status was received.
    [[nodiscard]] bool isHelperOutdated() const;

Q_SIGNALS:
    void stateChanged();
    void lastStatusChanged();
};

} // namespace kestrowind
