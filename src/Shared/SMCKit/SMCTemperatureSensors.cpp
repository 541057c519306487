#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include <algorithm>
#include <utility>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;

constexpr int longestDoubling = 12;
constexpr auto ceilingWithoutCPU = 300s;
constexpr auto ceilingWithoutGPU = 3600s;

/// A die temperature is a "flt " strictly between 1 and 128 degrees; anything else is no reading.
std::optional<double> validReading(SMCConnection& smc, std::string_view key) {
    const auto value = smc.readBytes(key);
    if (!value)
        return std::nullopt;
    const auto celsius = value->asFloat();
    if (!celsius || !(*celsius > 1.0F && *celsius < 128.0F))
        return std::nullopt;
    return static_cast<double>(*celsius);
}

} // namespace

SMCSensorGroup smcSensorGroup(std::string_view keyName) {
    if (keyName.starts_with("Tp") || keyName.starts_with("Te"))
        return SMCSensorGroup::cpu;
    if (keyName.starts_with("Tg"))
        return SMCSensorGroup::gpu;
    return SMCSensorGroup::none;
}

SMCTemperatureSensors::SMCTemperatureSensors(SMCConnection& smc, Clock now)
    : m_smc(smc)
    , m_now(std::move(now)) {
    discoverKeys();
}

void SMCTemperatureSensors::discoverKeys() {
    const auto count = m_smc.keyCount();
    if (!count)
        return;
    m_lastDiscovery = m_now();
    const Counts before = sensorCounts();

    std::vector<std::string> cpuKeys;
    std::vector<std::string> gpuKeys;
    const std::uint32_t end = std::min(*count, smcMaximumKeyCount);
    for (std::uint32_t index = 0; index < end; ++index) {
        auto name = m_smc.keyName(index);
        if (!name)
            continue;
        const SMCSensorGroup group = smcSensorGroup(*name);
        if (group == SMCSensorGroup::none || !validReading(m_smc, *name))
            continue;
        (group == SMCSensorGroup::cpu ? cpuKeys : gpuKeys).push_back(std::move(*name));
    }
    if (!cpuKeys.empty())
        m_cpuKeys = std::move(cpuKeys);
    if (!gpuKeys.empty())
        m_gpuKeys = std::move(gpuKeys);

    const bool filledGroup =
        (before.cpu == 0 && !m_cpuKeys.empty()) || (before.gpu == 0 && !m_gpuKeys.empty());
    m_fruitlessSweeps = filledGroup ? 0 : m_fruitlessSweeps + 1;
}

bool SMCTemperatureSensors::isWalkDue() const {
    if (!m_cpuKeys.empty() && !m_gpuKeys.empty())
        return false;
    if (!m_lastDiscovery)
        return true;
    // Without CPU sensors the fans' safety has no input, so that is retried soonest.
    const auto doubled = std::chrono::seconds(1LL << std::min(m_fruitlessSweeps, longestDoubling));
    const auto wait = m_cpuKeys.empty()
                          ? std::min<std::chrono::seconds>(doubled, ceilingWithoutCPU)
                          : std::min<std::chrono::seconds>(doubled * 60, ceilingWithoutGPU);
    return m_now() - *m_lastDiscovery >= wait;
}

std::optional<SMCTemperatureSensors::Stats>
SMCTemperatureSensors::readStats(const std::vector<std::string>& keys) {
    double sum = 0;
    double maximum = 0;
    int count = 0;
    for (const std::string& key : keys) {
        if (const auto celsius = validReading(m_smc, key)) {
            sum += *celsius;
            maximum = std::max(maximum, *celsius);
            ++count;
        }
    }
    if (count == 0)
        return std::nullopt;
    return Stats{sum / count, maximum};
}

SMCTemperatureSnapshot SMCTemperatureSensors::snapshot() {
    if (isWalkDue())
        discoverKeys();
    m_lastValidCPU = readStats(m_cpuKeys).value_or(m_lastValidCPU);
    m_lastValidGPU = readStats(m_gpuKeys).value_or(m_lastValidGPU);
    return {.cpuAverage = m_lastValidCPU.average,
            .cpuMax = m_lastValidCPU.maximum,
            .gpuAverage = m_lastValidGPU.average,
            .gpuMax = m_lastValidGPU.maximum,
            .hottest = std::max(m_lastValidCPU.maximum, m_lastValidGPU.maximum)};
}

} // namespace kestrowind
