#pragma once

#include "Core/AssignIfChanged.h"
#include "Core/HelperControlling.h"

namespace kestrowind {

/// A helper that does nothing, for previews and tests: they set its state and status to show each
/// situation.
class PreviewHelperClient : public HelperControlling {
    Q_OBJECT

public:
    explicit PreviewHelperClient(HelperState state = HelperState::installed,
                                 std::optional<HelperStatus> lastStatus = std::nullopt)
        : m_state(state)
        , m_lastStatus(std::move(lastStatus)) {}

    [[nodiscard]] HelperState state() const override { return m_state; }
    [[nodiscard]] std::optional<HelperStatus> lastStatus() const override { return m_lastStatus; }

    void setState(HelperState state) {
        if (assignIfChanged(m_state, state))
            Q_EMIT stateChanged();
    }
    void setLastStatus(const std::optional<HelperStatus>& status) {
        if (assignIfChanged(m_lastStatus, status))
            Q_EMIT lastStatusChanged();
    }

    void refreshInstallState() override {}
    QCoro::Task<std::optional<Targets>> setTargets(Targets) override { co_return std::nullopt; }
    QCoro::Task<void> releaseControl() override { co_return; }
    QCoro::Task<void> shutDownDaemon() override { co_return; }
    QCoro::Task<std::optional<HelperStatus>> fetchStatus() override { co_return std::nullopt; }
    QCoro::Task<std::expected<void, InstallError>> install() override {
        co_return std::expected<void, InstallError>();
    }
    QCoro::Task<void> uninstall() override { co_return; }

private:
    HelperState m_state;
    std::optional<HelperStatus> m_lastStatus;
};

} // namespace kestrowind
