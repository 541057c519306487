#pragma once

#include "Core/AppState.h"
#include "Core/PreviewHelperClient.h"
#include "Support/FakeFileDialogs.h"
#include "Support/TestDefaults.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {

/// A sample at a time in seconds, with one fan for each speed.
inline TelemetrySample sampleAt(double seconds, double cpu, double gpu,
                                const std::vector<double>& speeds = {}, double maxRPM = 6000) {
    TelemetrySample sample{.timestamp = std::chrono::system_clock::time_point(
                               std::chrono::milliseconds(std::llround(seconds * 1000))),
                           .temperatures = {.cpuAverage = cpu,
                                            .cpuMax = cpu,
                                            .gpuAverage = gpu,
                                            .gpuMax = gpu,
                                            .hottest = std::max(cpu, gpu)},
                           .fans = {}};
    for (const double speed : speeds) {
        sample.fans.push_back({.index = static_cast<int>(sample.fans.size()),
                               .actualRPM = speed,
                               .minRPM = 1200,
                               .maxRPM = maxRPM});
    }
    return sample;
}

/// A helper that applies whatever it is asked for.
class ObedientHelper final : public PreviewHelperClient {
public:
    QCoro::Task<std::optional<Targets>> setTargets(Targets targets) override { co_return targets; }
    QCoro::Task<std::expected<void, InstallError>> install() override {
        setState(HelperState::installed);
        co_return std::expected<void, InstallError>();
    }
};

/// The application's state with a helper of the test's.
template <class Helper>
class StateWith {
public:
    explicit StateWith(const QStringList& arguments = {},
                       std::chrono::milliseconds controlPatience = ControlWatch::defaultPatience)
        : defaults(home.defaults(arguments)) {
        auto telemetry = std::make_unique<TelemetryStore>(*defaults, SMCUserClientFactory());
        auto store = std::make_unique<PresetStore>(2, *defaults,
                                                   PresetStore::Storage{.folder = home.path()});
        auto engine = std::make_unique<ControlEngine>(
            *telemetry, *store, *helper, &std::chrono::system_clock::now, controlPatience);
        appState = std::make_unique<AppState>(std::move(telemetry),
                                              std::unique_ptr<HelperControlling>(helper),
                                              std::move(store), std::move(engine));
    }

    [[nodiscard]] PresetStore& presets() const { return appState->presets(); }
    [[nodiscard]] ControlEngine& engine() const { return appState->engine(); }
    [[nodiscard]] TelemetryStore& telemetry() const { return appState->telemetry(); }
    void setPhase(HelperControlPhase phase) {
        HelperStatus status;
        status.phase = phase;
        helper->setLastStatus(status);
    }
    /// Drives the fans by the quick boost; the engine pushes with the sample.
    void boost(double percent) {
        engine().setQuickBoostPercent(percent);
        telemetry().ingest(sampleAt(0, 50, 50, {2000}));
    }

    TestHome home;
    std::unique_ptr<UserDefaults> defaults;
    Helper* helper = new Helper;
    std::unique_ptr<AppState> appState;
    FakeFileDialogs fileDialogs;
};

using TestState = StateWith<ObedientHelper>;

} // namespace kestrowind
