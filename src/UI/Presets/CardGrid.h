#pragma once

namespace kestrowind {

/// How cards of equal width share a width: as many columns as fit, which then take what is left
/// over, up to the greatest width. All in points.
struct CardGrid {
    static constexpr double spacing = 18;
    static constexpr double leastWidth = 210;
    static constexpr double greatestWidth = 280;

    int columns = 1;
    double columnWidth = leastWidth; ///< whole points

    /// Never without a column; where not even the narrowest fits, it is as wide as there is room.
    [[nodiscard]] static CardGrid fitting(double width);

    bool operator==(const CardGrid&) const = default;
};

} // namespace kestrowind
