#pragma once

#include "Core/ControlEngine.h"
#include "Core/ControlState.h"
#include "Core/PresetStore.h"
#include "Core/PreviewHelperClient.h"
#include "Core/TelemetryStore.h"
#include "Platform/LoginItem.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Support/FakeSystemInformation.h"
#include "Support/TestDefaults.h"
#include "UI/Settings/SettingsModel.h"

#include <QCoroFuture>
#include <QPromise>

namespace kestrowind {

/// A helper that the test answers for.
class WaitingHelper final : public PreviewHelperClient {
public:
    using Installed = std::expected<void, InstallError>;

    int questions = 0;
    int uninstallations = 0;
    std::vector<std::shared_ptr<QPromise<bool>>> openQuestions;
    std::vector<std::shared_ptr<QPromise<Installed>>> openInstallations;

    QCoro::Task<std::optional<HelperStatus>> fetchStatus() override {
        ++questions;
        co_await asked(openQuestions);
        co_return lastStatus();
    }
    QCoro::Task<Installed> install() override { co_return co_await asked(openInstallations); }
    QCoro::Task<void> uninstall() override {
        ++uninstallations;
        co_return;
    }

    /// All that is open, and what follows from it.
    void answerQuestions() { settle(openQuestions, true); }
    void endInstallation(const Installed& outcome) { settle(openInstallations, outcome); }

private:
    template <class Value>
    static QFuture<Value> asked(std::vector<std::shared_ptr<QPromise<Value>>>& open) {
        open.push_back(std::make_shared<QPromise<Value>>());
        open.back()->start();
        return open.back()->future();
    }
    template <class Value>
    static void settle(std::vector<std::shared_ptr<QPromise<Value>>>& open, const Value& value) {
        for (const auto& promise : std::exchange(open, {})) {
            promise->addResult(value);
            promise->finish();
        }
        QCoreApplication::processEvents();
    }
};

class FakeLoginItem final : public LoginItem {
public:
    bool enabled = false;
    int changes = 0;
    QString failure; ///< of every change, unless empty

    bool isEnabled() const override { return enabled; }
    std::expected<void, QString> registerApplication() override { return change(true); }
    std::expected<void, QString> unregisterApplication() override { return change(false); }

private:
    std::expected<void, QString> change(bool wanted) {
        ++changes;
        if (!failure.isEmpty())
            return std::unexpected(failure);
        enabled = wanted;
        return {};
    }
};

inline HelperStatus statusWith(HelperControlPhase phase,
                               std::optional<std::string> lastError = std::nullopt,
                               std::string version = HelperConstants::helperVersion) {
    return {.version = std::move(version), .phase = phase, .lastError = std::move(lastError)};
}

/// What the settings work on.
struct SettingsMachine {
    SettingsMachine() {
        defaults->registerDefault(QStringLiteral("hideDockIconWhenWindowClosed"), true);
    }
    /// A question that nobody answered would keep its asker.
    ~SettingsMachine() {
        helper.answerQuestions();
        helper.endInstallation({});
    }
    SettingsMachine(const SettingsMachine&) = delete;
    SettingsMachine& operator=(const SettingsMachine&) = delete;

    [[nodiscard]] SettingsServices services() {
        return {.helper = helper,
                .control = control,
                .helperOperation = operation,
                .userDefaults = *defaults,
                .loginItem = loginItem,
                .information = information};
    }

    TestHome home;
    std::unique_ptr<UserDefaults> defaults = home.defaults();
    WaitingHelper helper;
    TelemetryStore telemetry{*defaults, SMCUserClientFactory()};
    PresetStore presets{2, *defaults, {.folder = home.path()}};
    ControlEngine engine{telemetry, presets, helper, &std::chrono::system_clock::now,
                         std::chrono::milliseconds(20)};
    ControlState control{helper, engine};
    HelperOperation operation{helper};
    FakeLoginItem loginItem;
    FakeSystemInformation information;
};

} // namespace kestrowind
