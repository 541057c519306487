#pragma once

#include "Core/AppState.h"
#include "Core/PreviewHelperClient.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/TestDefaults.h"

#include <memory>

namespace kestrowind {

/// An application state without a machine: what it says is handed in.
class MenuBarState {
    TestHome m_home;
    std::unique_ptr<UserDefaults> m_defaults = m_home.defaults();

public:
    AppState appState = makeState();
    TelemetryStore& telemetry = appState.telemetry();
    PresetStore& presets = appState.presets();
    ControlEngine& engine = appState.engine();
    PreviewHelperClient& helper = static_cast<PreviewHelperClient&>(appState.helper());

    void ingest(double cpu, double gpu, const std::vector<SMCFanReading>& fans) {
        TelemetrySample sample{
            .timestamp = std::chrono::system_clock::time_point(std::chrono::seconds(++m_samples)),
            .temperatures = {.cpuAverage = cpu,
                             .cpuMax = cpu,
                             .gpuAverage = gpu,
                             .gpuMax = gpu,
                             .hottest = std::max(cpu, gpu)},
            .fans = fans};
        telemetry.ingest(sample);
    }

    void setPhase(HelperControlPhase phase) {
        HelperStatus status;
        status.version = "1.0.2";
        status.phase = phase;
        helper.setLastStatus(status);
    }

    static SMCFanReading fan(int index, double actualRPM, double maxRPM = 6000) {
        SMCFanReading reading{};
        reading.index = index;
        reading.actualRPM = actualRPM;
        reading.minRPM = 1200;
        reading.maxRPM = maxRPM;
        return reading;
    }

private:
    AppState makeState() {
        auto store = std::make_unique<TelemetryStore>(
            *m_defaults, [] { return std::make_shared<SimulatedSMC>(); });
        auto client = std::make_unique<PreviewHelperClient>();
        auto choices = std::make_unique<PresetStore>(2, *m_defaults,
                                                     PresetStore::Storage{.folder = m_home.path()});
        auto control = std::make_unique<ControlEngine>(*store, *choices, *client);
        return AppState(std::move(store), std::move(client), std::move(choices),
                        std::move(control));
    }

    int m_samples = 0;
};

} // namespace kestrowind
