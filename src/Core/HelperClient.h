#pragma once

#include "Core/HelperControlling.h"
#include "Core/PendingReply.h"
#include "Platform/HelperConnection.h"
#include "Shared/HelperShared/HelperConstants.h"

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace kestrowind {

class AdminScriptRunner;
class SystemInformation;

/// The link to the real helper: derives its installation state from its two installed files, keeps
/// one lazily made connection, and turns each method of the protocol into an awaitable call.
///
/// Each call has a completion of its own that settles exactly once: with the reply, with nothing
/// after the time-out, or with nothing when the client goes. Calls may overlap.
class HelperClient final : public HelperControlling {
    Q_OBJECT

public:
    /// What the client needs of the platform. The references must outlive it.
    struct Environment {
        HelperConnectionFactory makeConnection;
        const SystemInformation& information;
        AdminScriptRunner& scriptRunner;
        std::chrono::milliseconds callTimeout = HelperConstants::callTimeout;
    };

    explicit HelperClient(Environment environment);
    ~HelperClient() override;

    [[nodiscard]] HelperState state() const override { return m_state; }
    [[nodiscard]] std::optional<HelperStatus> lastStatus() const override { return m_lastStatus; }
    void refreshInstallState() override;

    QCoro::Task<std::optional<Targets>> setTargets(Targets targets) override;
    QCoro::Task<void> releaseControl() override;
    QCoro::Task<void> shutDownDaemon() override;
    QCoro::Task<std::optional<HelperStatus>> fetchStatus() override;
    QCoro::Task<std::expected<void, InstallError>> install() override;
    QCoro::Task<void> uninstall() override;

private:
    /// Sends one message on a connection, with handlers that may be called on any thread.
    template <class Value>
    using Send = std::function<void(HelperConnection&, std::function<void(Value)> reply,
                                    HelperConnection::ErrorHandler error)>;
    struct Done {};

    template <class Value>
    QCoro::Task<std::optional<Value>> call(Send<Value> send);
    HelperConnection& connection();
    HelperConnection::ErrorHandler errorHandler();
    QCoro::Task<std::expected<void, InstallError>> runWithAdminPrivileges(QString shellScript);

    void setState(HelperState state);
    void setLastStatus(const std::optional<HelperStatus>& status);
    void takeStatus(const HelperStatus& status);

    Environment m_environment;
    HelperState m_state = HelperState::notInstalled;
    std::optional<HelperStatus> m_lastStatus;
    std::unique_ptr<HelperConnection> m_connection;
    std::vector<std::weak_ptr<PendingReplyBase>> m_pending;
};

} // namespace kestrowind
