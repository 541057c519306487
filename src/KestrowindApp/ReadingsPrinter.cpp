#include "KestrowindApp/ReadingsPrinter.h"

#include "Core/AppState.h"

#include <QDateTime>
#include <QTimeZone>
#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdio>
#include <poll.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using Json = nlohmann::ordered_json;

QDateTime dateTime(const TelemetrySample& sample) {
    const auto sinceEpoch =
        std::chrono::duration_cast<std::chrono::milliseconds>(sample.timestamp.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(sinceEpoch.count(), QTimeZone::utc());
}

template <class T>
Json orNull(const std::optional<T>& value) {
    return value ? Json(*value) : Json();
}

std::optional<std::string> phaseText(const ControlState::Facts& control) {
    const auto phase = control.phase();
    return phase ? std::optional(std::string(text(*phase))) : std::nullopt;
}

Json reasonRecord(const FanReason& reason) {
    return {{"cause", FanReason::word(reason.cause)},
            {"temperature", reason.temperature},
            {"measuredTemperature", reason.measuredTemperature},
            {"curvePercent", reason.curvePercent},
            {"boostPercent", reason.boostPercent},
            {"askedRPM", reason.askedSpeed},
            {"appliedRPM", orNull(reason.appliedSpeed)}};
}

Json fanReadings(const AppState& appState, const TelemetrySample& sample) {
    const QList<FanReason> reasons = appState.fanReasons();
    Json fans = Json::array();
    for (const SMCFanReading& fan : sample.fans) {
        const auto position = static_cast<qsizetype>(fans.size());
        fans.push_back(
            {{"index", fan.index},
             {"actualRPM", fan.actualRPM},
             {"targetRPM", fan.targetRPM},
             {"minRPM", fan.minRPM},
             {"maxRPM", fan.maxRPM},
             {"mode", orNull(fan.modeRaw)},
             {"reason", position < reasons.size() ? reasonRecord(reasons[position]) : Json()}});
    }
    return fans;
}

std::optional<double> known(double celsius) {
    return SMCTemperatureSnapshot::isKnown(celsius) ? std::optional(celsius) : std::nullopt;
}

/// Five characters, so that the lines make columns.
QString degrees(double celsius) {
    return known(celsius) ? QString::asprintf("%5.1f", celsius) : u"   --"_s;
}

/// False while whoever reads the lines is behind, or a terminal is held: the fans do not wait.
bool outputTakesALine() {
    pollfd output{.fd = STDOUT_FILENO, .events = POLLOUT, .revents = 0};
    return ::poll(&output, 1, 0) != 0;
}

} // namespace

ReadingsPrinter::ReadingsPrinter(const AppState& appState, ReadingsFormat format)
    : m_appState(appState)
    , m_format(format) {
    appState.telemetry().onSample(this, [this](const TelemetrySample& sample) { print(sample); });
}

std::string ReadingsPrinter::json(const AppState& appState, const TelemetrySample& sample) {
    const ControlEngine& engine = appState.engine();
    const ControlState::Facts& control = appState.control().facts();
    const auto preset = appState.presets().activePreset();
    const auto& temperatures = sample.temperatures;
    const Json line{
        {"timestamp", dateTime(sample).toString(Qt::ISODateWithMs).toStdString()},
        {"cpuAverage", orNull(known(temperatures.cpuAverage))},
        {"cpuMax", orNull(known(temperatures.cpuMax))},
        {"gpuAverage", orNull(known(temperatures.gpuAverage))},
        {"gpuMax", orNull(known(temperatures.gpuMax))},
        {"hottest", orNull(known(temperatures.hottest))},
        {"systemTemperature", orNull(known(appState.telemetry().systemTemperature().value_or(0)))},
        {"smoothedTemperature", engine.smoothedTemperature()},
        {"fans", fanReadings(appState, sample)},
        {"preset", preset ? Json(preset->name.toStdString()) : Json()},
        {"quickBoostPercent", engine.quickBoostPercent()},
        {"requestedPercents",
         std::vector<double>(engine.requestedPercents().begin(), engine.requestedPercents().end())},
        {"effectiveTargets", engine.effectiveTargets()},
        {"isOverriding", engine.isOverriding()},
        {"isDenied", control.isDenied},
        {"helperState", kestrowind::text(control.helper).toStdString()},
        {"phase", orNull(phaseText(control))},
    };
    return line.dump();
}

std::string ReadingsPrinter::text(const AppState& appState, const TelemetrySample& sample) {
    const auto& temperatures = sample.temperatures;
    QString line = dateTime(sample).toLocalTime().toString(u"HH:mm:ss"_s) +
                   u"  CPU %1 °C (max %2)  GPU %3 °C (max %4)"_s.arg(
                       degrees(temperatures.cpuAverage), degrees(temperatures.cpuMax),
                       degrees(temperatures.gpuAverage), degrees(temperatures.gpuMax));
    for (const SMCFanReading& fan : sample.fans)
        line += QString::asprintf("  fan %d %5.0f → %5.0f rpm", fan.index, fan.actualRPM,
                                  fan.targetRPM);
    const auto preset = appState.presets().activePreset();
    const ControlState::Facts& control = appState.control().facts();
    line += u"  "_s + (preset ? preset->name : u"Automatic"_s) + u"  helper "_s +
            kestrowind::text(control.helper);
    if (const auto phase = phaseText(control))
        line += u", "_s + QString::fromStdString(*phase);
    if (control.isDenied)
        line += u", not doing what it is asked"_s;
    return line.toStdString();
}

void ReadingsPrinter::print(const TelemetrySample& sample) {
    if (!outputTakesALine())
        return;
    const std::string line =
        (m_format == ReadingsFormat::json ? json(m_appState, sample) : text(m_appState, sample)) +
        '\n';
    if (std::fwrite(line.data(), 1, line.size(), stdout) != line.size() || std::fflush(stdout) != 0)
        Q_EMIT outputClosed();
}

} // namespace kestrowind
