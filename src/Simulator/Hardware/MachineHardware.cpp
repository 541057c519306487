#include "Simulator/Hardware/MachineHardware.h"

#include "Shared/SMCKit/FourCC.h"
#include "Shared/SMCKit/SMCCodec.h"
#include "Shared/SMCKit/SMCFanReading.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kestrowind {
namespace {

constexpr std::string_view unlockKey = "Ftst";

// Longer steps are cut up: fans and temperatures act on each other.
constexpr double longestStep = 0.1;

/// The four bytes of a packed name, which need not be ASCII.
std::string nameBytes(std::uint32_t name) {
    return {static_cast<char>(name >> 24), static_cast<char>(name >> 16),
            static_cast<char>(name >> 8), static_cast<char>(name)};
}

} // namespace

MachineHardware::MachineHardware(SimulatedSMC& smc, MachineProfile profile, double load)
    : m_smc(smc)
    , m_profile(std::move(profile))
    , m_thermal(m_profile.thermal)
    , m_load(std::clamp(load, 0.0, 1.0)) {
    for (const FanProfile& fan : m_profile.fans)
        m_fans.push_back({.profile = fan});
    settle();
    createKeys();
    publish();
}

void MachineHardware::createKeys() {
    m_smc.setByte("FNum", static_cast<std::uint8_t>(m_fans.size()));
    createReadOnly("FNum");
    for (std::size_t index = 0; index < m_fans.size(); ++index)
        createFanKeys(index);
    if (m_profile.unlockSeconds)
        createUnlockKey();
    for (const SensorProfile& sensor : m_profile.sensors) {
        m_smc.setFloat(nameBytes(sensor.name), 0);
        createReadOnly(nameBytes(sensor.name));
    }
    for (const SimulatedSMC::Key& key : m_profile.keys)
        m_smc.setKey(key);
}

void MachineHardware::createFanKeys(std::size_t index) {
    const auto key = [index](std::string_view suffix) {
        return smcFanKey(static_cast<int>(index), suffix);
    };
    const auto rpm = [](double value) { return static_cast<float>(value); };
    const FanProfile& profile = m_fans[index].profile;
    m_smc.setFloat(key("Ac"), 0);
    m_smc.setFloat(key("Mn"), rpm(profile.minimum));
    m_smc.setFloat(key("Mx"), rpm(profile.maximum));
    for (const char* suffix : {"Ac", "Mn", "Mx"})
        createReadOnly(key(suffix));
    m_smc.setFloat(key("Tg"), 0);
    m_smc.setWriteRule(key("Tg"), [this, index](std::span<const std::uint8_t> bytes) {
        const float target = decodeFloat(bytes.first<4>());
        return writeTarget(m_fans[index], static_cast<double>(target));
    });
    if (profile.modeKeySuffix.empty())
        return;
    const std::string mode = key(profile.modeKeySuffix);
    m_smc.setByte(mode, 0);
    m_smc.setWriteRule(mode, [this, index](std::span<const std::uint8_t> bytes) {
        return writeMode(m_fans[index], bytes.front());
    });
    m_smc.setWriteEffect(mode, [this] { publish(); });
}

void MachineHardware::createUnlockKey() {
    m_smc.setByte(unlockKey, 0);
    m_smc.setWriteRule(unlockKey, [this](std::span<const std::uint8_t> bytes) {
        return writeUnlock(bytes.front());
    });
    m_smc.setWriteEffect(unlockKey, [this] { publish(); });
}

void MachineHardware::createReadOnly(std::string_view name) {
    m_smc.setWriteRule(name,
                       [](std::span<const std::uint8_t>) { return SimulatedSMC::resultRefused; });
}

bool MachineHardware::isUnlocked() const {
    return !m_profile.unlockSeconds ||
           (m_isUnlocking && m_unlockElapsed >= *m_profile.unlockSeconds);
}

std::uint8_t MachineHardware::writeMode(Fan& fan, std::uint8_t mode) {
    if (mode > 1 || (mode == 1 && !isUnlocked()))
        return SimulatedSMC::resultRefused;
    fan.manual = mode == 1;
    return 0;
}

std::uint8_t MachineHardware::writeTarget(Fan& fan, double target) {
    if (!fan.manual || !std::isfinite(target))
        return SimulatedSMC::resultRefused;
    fan.targetRPM = target;
    return 0;
}

std::uint8_t MachineHardware::writeUnlock(std::uint8_t value) {
    if (value > 1)
        return SimulatedSMC::resultRefused;
    if (!m_isUnlocking)
        m_unlockElapsed = 0;
    m_isUnlocking = value == 1;
    if (!m_isUnlocking) {
        for (Fan& fan : m_fans)
            fan.manual = false;
    }
    return 0;
}

void MachineHardware::setLoad(double load) {
    m_load = std::clamp(load, 0.0, 1.0);
}

double MachineHardware::fanFraction() const {
    if (m_fans.empty())
        return 0;
    double sum = 0;
    for (const Fan& fan : m_fans)
        sum += fan.actualRPM / fan.profile.maximum;
    return sum / static_cast<double>(m_fans.size());
}

double MachineHardware::systemTarget(const Fan& fan) const {
    const double demand = systemDemand(m_profile.systemControl, m_thermal.hottest());
    return std::lerp(fan.profile.minimum, fan.profile.maximum, demand);
}

void MachineHardware::settle() {
    // Hotter means faster fans means cooler: the temperature at which the two agree is between any
    // two temperatures that disagree in opposite directions.
    double low = -100;
    double high = 10'000;
    for (int halving = 0; halving < 60; ++halving) {
        const double assumed = (low + high) / 2;
        const double demand = systemDemand(m_profile.systemControl, assumed);
        for (Fan& fan : m_fans)
            fan.actualRPM = std::lerp(fan.profile.minimum, fan.profile.maximum, demand);
        m_thermal.settle(m_load, fanFraction());
        (m_thermal.hottest() > assumed ? low : high) = assumed;
    }
    for (Fan& fan : m_fans)
        fan.targetRPM = fan.actualRPM;
}

void MachineHardware::step(double seconds) {
    while (seconds > 0) {
        const double part = std::min(seconds, longestStep);
        seconds -= part;
        if (m_isUnlocking)
            m_unlockElapsed += part;
        for (Fan& fan : m_fans) {
            if (!fan.manual)
                fan.targetRPM = systemTarget(fan);
            const double possible =
                std::clamp(fan.targetRPM, fan.profile.minimum, fan.profile.maximum);
            fan.actualRPM += lagFraction(part, fan.profile.inertia) * (possible - fan.actualRPM);
        }
        m_thermal.step(part, m_load, fanFraction());
    }
    publish();
}

void MachineHardware::publish() {
    for (std::size_t index = 0; index < m_fans.size(); ++index) {
        Fan& fan = m_fans[index];
        if (!fan.manual)
            fan.targetRPM = systemTarget(fan);
        const int number = static_cast<int>(index);
        m_smc.storeFloat(smcFanKey(number, "Ac"), static_cast<float>(fan.actualRPM));
        m_smc.storeFloat(smcFanKey(number, "Tg"), static_cast<float>(fan.targetRPM));
        if (!fan.profile.modeKeySuffix.empty()) {
            const std::array<std::uint8_t, 1> mode{fan.manual ? std::uint8_t{1} : std::uint8_t{0}};
            m_smc.store(smcFanKey(number, fan.profile.modeKeySuffix), mode);
        }
    }
    for (const SensorProfile& sensor : m_profile.sensors) {
        const double part =
            sensor.part == SensorProfile::Part::cpu ? m_thermal.cpu() : m_thermal.gpu();
        m_smc.storeFloat(nameBytes(sensor.name), static_cast<float>(part + sensor.offset));
    }
}

} // namespace kestrowind
