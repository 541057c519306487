#pragma once

#include "Shared/SMCKit/SMCConnection.h"

#include <chrono>
#include <cmath>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrowind {

/// One reading of the die temperatures in degrees Celsius; 0 means that there never was any data.
struct SMCTemperatureSnapshot {
    double cpuAverage = 0;
    double cpuMax = 0;
    double gpuAverage = 0;
    double gpuMax = 0;
    double hottest = 0; ///< the greater of the two maxima

    /// Whether a temperature is a measured one.
    [[nodiscard]] static bool isKnown(double celsius) {
        return std::isfinite(celsius) && celsius != 0;
    }

    bool operator==(const SMCTemperatureSnapshot&) const = default;
};

/// Which group of die sensors a key belongs to, by its name alone.
enum class SMCSensorGroup { none, cpu, gpu };
[[nodiscard]] SMCSensorGroup smcSensorGroup(std::string_view keyName);

/// No SMC has nearly as many keys; a count above this is nonsense and is not walked to its end.
inline constexpr std::uint32_t smcMaximumKeyCount = 65536;

/// Finds the CPU and GPU die sensors by walking the key directory once, and reads them each tick.
///
/// A walk costs a kernel call a key, so one that finds nothing is repeated on an exponential
/// back-off only, a group that was found is never given up, and readings that go silent are held
/// over. Every SMC failure is absorbed here. Belongs to the thread of its connection.
class SMCTemperatureSensors {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    struct Counts {
        std::size_t cpu = 0;
        std::size_t gpu = 0;
        bool operator==(const Counts&) const = default;
    };

    /// Walks the directory at once. The connection must outlive this object.
    explicit SMCTemperatureSensors(SMCConnection& smc, Clock now = &std::chrono::steady_clock::now);

    /// Walks again if a group is missing and the wait is over, then reads both groups.
    [[nodiscard]] SMCTemperatureSnapshot snapshot();
    [[nodiscard]] Counts sensorCounts() const { return {m_cpuKeys.size(), m_gpuKeys.size()}; }

private:
    struct Stats {
        double average = 0;
        double maximum = 0;
    };

    void discoverKeys();
    [[nodiscard]] bool isWalkDue() const;
    [[nodiscard]] std::optional<Stats> readStats(const std::vector<std::string>& keys);

    SMCConnection& m_smc;
    Clock m_now;
    std::vector<std::string> m_cpuKeys;
    std::vector<std::string> m_gpuKeys;
    Stats m_lastValidCPU;
    Stats m_lastValidGPU;
    std::optional<std::chrono::steady_clock::time_point> m_lastDiscovery; ///< absent: long ago
    int m_fruitlessSweeps = 0;
};

} // namespace kestrowind
