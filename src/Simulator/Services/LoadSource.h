#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrowind {

/// Where a machine's load comes from: a fixed one, or that of the real processor.
class LoadSource {
public:
    /// What little a machine always does.
    static constexpr double idleLoad = 0.05;

    /// From "idle", "host" or "NN%"; absent for anything else.
    [[nodiscard]] static std::optional<LoadSource> parse(std::string_view text);

    /// The load now, 0 to 1. The real processor's is the average since the last call; to be called
    /// about once a second.
    [[nodiscard]] double sample();
    [[nodiscard]] const std::string& text() const { return m_text; }

private:
    LoadSource(std::string text, std::optional<double> fixed);

    std::string m_text;
    std::optional<double> m_fixed; ///< absent: the real processor's
    double m_last = idleLoad;
    std::uint64_t m_busy = 0;
    std::uint64_t m_total = 0;
};

} // namespace kestrowind
