// How long it takes from choosing a preset until the helper is handed the targets, the engine's
// wait for further changes included. Prints the median and the 99th percentile.

#include "Core/AppState.h"
#include "Core/PreviewHelperClient.h"
#include "Core/TelemetrySample.h"
#include "Support/TestDefaults.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace kestrowind {
namespace {

/// Notes when it was handed targets.
class WaitingHelper final : public PreviewHelperClient {
public:
    bool wasReached = false;

    QCoro::Task<std::optional<Targets>> setTargets(Targets targets) override {
        wasReached = true;
        co_return targets;
    }
};

double milliseconds(PresetStore& presets, ControlEngine& engine, WaitingHelper& helper) {
    helper.wasReached = false;
    QElapsedTimer timer;
    timer.start();
    presets.setActivePresetID(presets.activePresetID() == FanPreset::coolID ? FanPreset::fullSpeedID
                                                                            : FanPreset::coolID);
    engine.pushSoon();
    while (!helper.wasReached)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace
} // namespace kestrowind

int main(int argc, char* argv[]) {
    using namespace kestrowind;
    QCoreApplication application(argc, argv);
    const TestHome home;
    const auto defaults = home.defaults();
    auto telemetry = std::make_unique<TelemetryStore>(*defaults, nullptr);
    auto helper = std::make_unique<WaitingHelper>();
    auto presets = std::make_unique<PresetStore>(
        1, *defaults, PresetStore::Storage{.folder = home.path(QStringLiteral("app"))});
    auto engine = std::make_unique<ControlEngine>(*telemetry, *presets, *helper);
    telemetry->ingest({.timestamp = std::chrono::system_clock::now(),
                       .temperatures = {.cpuAverage = 60, .cpuMax = 65, .hottest = 65},
                       .fans = {{.index = 0, .minRPM = 1200, .maxRPM = 6000}}});
    constexpr int rounds = 200;
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(milliseconds(*presets, *engine, *helper));
    std::ranges::sort(times);
    std::printf(
        "choosing a preset to targets at the helper: p50 %.1f ms, p99 %.1f ms (%d rounds)\n",
        times[rounds / 2], times[rounds * 99 / 100], rounds);
}
