#include "Helper/FanController.h"

#include "Shared/HelperShared/FanTargets.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/HelperShared/HelperSafetyFloor.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace kestrowind {
namespace {

constexpr char unlockKey[] = "Ftst";
constexpr std::uint8_t systemMode = 0;
constexpr std::uint8_t manualMode = 1;

// Floors are at most this old, asked for or not.
constexpr std::chrono::milliseconds temperatureLifetime{500};

} // namespace

FanController::FanController(SMCUserClientFactory makeUserClient, Clock now)
    : m_makeUserClient(std::move(makeUserClient))
    , m_now(std::move(now))
    , m_hottest(std::numeric_limits<double>::quiet_NaN())
    , m_lastWord(m_now())
    , m_unlockSince(m_lastWord) {
    if (const auto opened = open(); !opened)
        m_lastError = opened.error();
}

FanController::~FanController() {
    if (isHolding())
        handBack();
}

bool FanController::isHolding() const {
    return m_phase == HelperControlPhase::unlocking || m_phase == HelperControlPhase::controlling;
}

FanController::Result<void> FanController::open() {
    if (m_smc && !m_fans.empty())
        return {};
    m_sensors.reset();
    auto opened = SMCConnection::open(m_makeUserClient());
    if (!opened)
        return std::unexpected(description(opened.error()));
    m_smc = std::move(*opened);
    const auto readings = m_smc->readAllFans();
    if (!readings)
        return std::unexpected(description(readings.error()));
    m_fans.clear();
    for (const SMCFanReading& reading : *readings) {
        m_fans.push_back({.minRPM = reading.minRPM,
                          .maxRPM = reading.maxRPM,
                          .targetKey = smcFanKey(reading.index, "Tg"),
                          .modeKey = m_smc->fanModeKey(reading.index).value_or("")});
    }
    m_sensors.emplace(*m_smc, m_now);
    readTemperature();
    handBack();
    return {};
}

FanController::Result<std::vector<double>>
FanController::setTargets(std::span<const double> targets) {
    if (const auto opened = open(); !opened) {
        m_phase = HelperControlPhase::failed;
        m_lastError = opened.error();
        return std::unexpected(opened.error());
    }
    if (m_fans.empty())
        return std::unexpected("this machine has no fans");
    if (auto checked = checkFanTargets(targets, m_fans.size()); !checked)
        return std::unexpected(std::move(checked.error()));
    m_lastWord = m_now();
    for (std::size_t index = 0; index < m_fans.size(); ++index)
        m_fans[index].target = targets[index];
    if (const auto taken = isHolding() ? Result<void>() : takeFans(); !taken)
        fail(taken.error());
    tick();
    if (m_phase == HelperControlPhase::controlling)
        applyTargets();
    return effectiveTargets();
}

FanController::Result<void> FanController::takeFans() {
    const auto lacksModeKey = std::ranges::find(m_fans, std::string(), &Fan::modeKey);
    if (lacksModeKey != m_fans.end())
        return std::unexpected("fan " + std::to_string(lacksModeKey - m_fans.begin()) +
                               " has no mode key");
    if (m_smc->keyExists(unlockKey)) {
        if (const auto written = m_smc->writeUInt8(unlockKey, 1); !written)
            return std::unexpected(description(written.error()));
    }
    m_lastError.reset();
    m_isHandBackDue = false;
    m_phase = HelperControlPhase::unlocking;
    m_unlockSince = m_now();
    return {};
}

void FanController::tick() {
    if (m_isHandBackDue)
        handBack();
    if (!isHolding())
        return;
    if (m_now() - m_lastWord > HelperConstants::heartbeatTimeout) {
        releaseControl();
        return;
    }
    if (m_phase == HelperControlPhase::unlocking)
        attemptUnlock();
    const bool floorsAreOld =
        !m_temperatureReadAt || m_now() - *m_temperatureReadAt >= temperatureLifetime;
    if (m_phase == HelperControlPhase::controlling && floorsAreOld) {
        readTemperature();
        applyTargets();
    }
}

void FanController::attemptUnlock() {
    for (const Fan& fan : m_fans) {
        const auto taken = m_smc->writeUInt8(fan.modeKey, manualMode);
        if (taken)
            continue;
        if (m_now() - m_unlockSince > unlockLimit)
            fail("The fans were not handed over within " + std::to_string(unlockLimit.count()) +
                 " seconds: " + description(taken.error()));
        return;
    }
    m_phase = HelperControlPhase::controlling;
    readTemperature();
    applyTargets();
}

void FanController::readTemperature() {
    m_temperatureReadAt = m_now();
    const double hottest = m_sensors->snapshot().hottest;
    // A snapshot of 0 means that no sensor ever answered: the floor must assume the worst.
    m_hottest = hottest > 0 ? hottest : std::numeric_limits<double>::quiet_NaN();
}

void FanController::applyTargets() {
    for (const Fan& fan : m_fans) {
        if (const auto driven = drive(fan); !driven) {
            fail(description(driven.error()));
            return;
        }
    }
}

SMCResult<void> FanController::drive(const Fan& fan) {
    const double target = effectiveTarget(fan);
    if (target <= 0)
        return m_smc->writeUInt8(fan.modeKey, systemMode);
    if (auto taken = m_smc->writeUInt8(fan.modeKey, manualMode); !taken)
        return taken;
    return m_smc->writeFloat(fan.targetKey, static_cast<float>(target));
}

void FanController::releaseControl() {
    if (isHolding())
        handBack();
    m_phase = HelperControlPhase::idle;
    m_lastError.reset();
}

void FanController::fail(const std::string& why) {
    handBack();
    m_phase = HelperControlPhase::failed;
    m_lastError = why;
}

void FanController::handBack() {
    if (!m_smc)
        return;
    // Each write is worth trying whatever became of the others. A fan that cannot be reached stays
    // as it is until it can: see tick().
    m_isHandBackDue = false;
    for (Fan& fan : m_fans) {
        fan.target = 0;
        if (!fan.modeKey.empty() && !m_smc->writeUInt8(fan.modeKey, systemMode))
            m_isHandBackDue = true;
    }
    if (m_smc->keyExists(unlockKey) && !m_smc->writeUInt8(unlockKey, 0))
        m_isHandBackDue = true;
}

double FanController::floorRPM(const Fan& fan) const {
    const double percent = HelperSafetyFloor::floorPercent(m_hottest);
    return percent <= 0 ? 0 : std::lerp(fan.minRPM, fan.maxRPM, percent / 100);
}

double FanController::effectiveTarget(const Fan& fan) const {
    if (!isHolding())
        return 0;
    const double demand = std::max(fan.target, floorRPM(fan));
    return demand <= 0 ? 0 : std::min(std::max(demand, fan.minRPM), fan.maxRPM);
}

std::vector<double> FanController::effectiveTargets() const {
    std::vector<double> targets;
    for (const Fan& fan : m_fans)
        targets.push_back(effectiveTarget(fan));
    return targets;
}

HelperStatus FanController::status() {
    if (m_sensors && m_now() - *m_temperatureReadAt >= temperatureLifetime)
        readTemperature();
    HelperStatus status{.version = HelperConstants::helperVersion,
                        .phase = m_phase,
                        .autoFloors = {},
                        .effectiveTargets = effectiveTargets(),
                        .hottestSensorCelsius = std::isnan(m_hottest) ? 0 : m_hottest,
                        .lastError = m_lastError};
    for (const Fan& fan : m_fans)
        status.autoFloors.push_back(floorRPM(fan));
    return status;
}

} // namespace kestrowind
