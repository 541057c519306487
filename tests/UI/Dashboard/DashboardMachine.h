#pragma once

#include "Core/AppState.h"
#include "Core/PreviewHelperClient.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/FakeFileDialogs.h"
#include "Support/TestDefaults.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace kestrowind {

/// A sample at a time in seconds, with one fan for each speed.
inline TelemetrySample sampleAt(double seconds, double cpuMax, double gpuMax,
                                const std::vector<double>& speeds, double maxRPM = 6550) {
    TelemetrySample sample{.timestamp = std::chrono::system_clock::time_point(
                               std::chrono::milliseconds(std::llround(seconds * 1000))),
                           .temperatures = {.cpuAverage = cpuMax - 6.25,
                                            .cpuMax = cpuMax,
                                            .gpuAverage = gpuMax - 3.5,
                                            .gpuMax = gpuMax,
                                            .hottest = std::max(cpuMax, gpuMax)},
                           .fans = {}};
    for (const double speed : speeds) {
        sample.fans.push_back({.index = static_cast<int>(sample.fans.size()),
                               .actualRPM = speed,
                               .targetRPM = speed,
                               .minRPM = 2317,
                               .maxRPM = maxRPM});
    }
    return sample;
}

/// Samples two seconds apart of a machine that works in bursts.
inline std::vector<TelemetrySample> realisticSamples(int count, int fans) {
    std::vector<TelemetrySample> samples;
    double cpu = 46;
    double gpu = 42;
    double rpm = 2317;
    for (int tick = 0; tick < count; ++tick) {
        const bool isBusy = std::sin(tick / 70.0) > 0.35;
        const double noise = std::sin(tick * 12.9898) * 1.8 + std::sin(tick * 4.1414) * 1.1;
        cpu += ((isBusy ? 84 : 47) - cpu) * 0.05;
        gpu += ((isBusy ? 66 : 41) - gpu) * 0.03;
        rpm += (std::clamp(2317 + (cpu - 58) * 130, 2317.0, 6200.0) - rpm) * 0.08;
        std::vector<double> speeds;
        for (int fan = 0; fan < fans; ++fan)
            speeds.push_back(rpm * (1 + 0.07 * fan) + noise * 9);
        samples.push_back(sampleAt(2.0 * tick, cpu + noise, gpu + noise / 2, speeds));
    }
    return samples;
}

/// The application's state around a helper and a history that the caller sets.
struct DashboardMachine {
    TestHome home;
    std::unique_ptr<UserDefaults> defaults = home.defaults();
    AppState state{std::make_unique<TelemetryStore>(
                       *defaults, [] { return std::make_shared<SimulatedSMC>(); }),
                   std::make_unique<PreviewHelperClient>(), nullptr, nullptr};

    FakeFileDialogs fileDialogs;

    PreviewHelperClient& helper() { return static_cast<PreviewHelperClient&>(state.helper()); }
    void ingest(const std::vector<TelemetrySample>& samples) {
        for (const TelemetrySample& sample : samples)
            state.telemetry().ingest(sample);
    }
};

} // namespace kestrowind
