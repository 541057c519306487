#include "Simulator/Services/LoadSource.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <utility>

namespace kestrowind {
namespace {

struct ProcessorTime {
    std::uint64_t busy = 0;
    std::uint64_t total = 0;
};

/// The first line of /proc/stat: "cpu" and the time spent in user, nice, system, idle, iowait, irq,
/// softirq and steal. What follows is contained in those.
std::optional<ProcessorTime> readProcessorTime() {
    std::ifstream stream("/proc/stat");
    std::string name;
    if (!(stream >> name) || name != "cpu")
        return std::nullopt;
    ProcessorTime time;
    for (int column = 0; column < 8; ++column) {
        std::uint64_t ticks = 0;
        if (!(stream >> ticks))
            return std::nullopt;
        const bool isIdle = column == 3 || column == 4;
        time.total += ticks;
        time.busy += isIdle ? 0 : ticks;
    }
    return time;
}

} // namespace

LoadSource::LoadSource(std::string text, std::optional<double> fixed)
    : m_text(std::move(text))
    , m_fixed(fixed) {
    if (fixed)
        return;
    if (const auto time = readProcessorTime()) {
        m_busy = time->busy;
        m_total = time->total;
    }
}

std::optional<LoadSource> LoadSource::parse(std::string_view text) {
    if (text == "idle")
        return LoadSource("idle", idleLoad);
    if (text == "host")
        return LoadSource("host", std::nullopt);
    double percent = 0;
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, percent);
    const bool hasPercentSign =
        parsed.ec == std::errc() && std::string_view(parsed.ptr, end) == "%";
    if (!hasPercentSign || !(percent >= 0 && percent <= 100))
        return std::nullopt;
    return LoadSource(std::string(text), percent / 100);
}

double LoadSource::sample() {
    if (m_fixed)
        return *m_fixed;
    const auto time = readProcessorTime();
    if (time && time->total > m_total) {
        const auto busy = static_cast<double>(time->busy - std::min(m_busy, time->busy));
        m_last = std::clamp(busy / static_cast<double>(time->total - m_total), 0.0, 1.0);
        m_busy = time->busy;
        m_total = time->total;
    }
    return m_last;
}

} // namespace kestrowind
