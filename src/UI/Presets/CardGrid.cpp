#include "UI/Presets/CardGrid.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {

CardGrid CardGrid::fitting(double width) {
    const double room = std::max(width, 0.0);
    const int columns =
        std::max(static_cast<int>(std::floor((room + spacing) / (leastWidth + spacing))), 1);
    const double share = (room - (columns - 1) * spacing) / columns;
    return {.columns = columns, .columnWidth = std::floor(std::min(share, greatestWidth))};
}

} // namespace kestrowind
