#include "UI/MenuBar/FlowArrangement.h"

#include <algorithm>
#include <limits>

namespace kestrowind {

QSizeF FlowArrangement::measured(const QList<QSizeF>& sizes, std::optional<double> width) const {
    const double limit = width.value_or(std::numeric_limits<double>::infinity());
    double x = 0;
    double rowHeight = 0;
    double widest = 0;
    double total = 0;
    for (const QSizeF& size : sizes) {
        if (x > 0 && x + spacing + size.width() > limit) {
            widest = std::max(widest, x);
            total += rowHeight + rowSpacing;
            x = size.width();
            rowHeight = size.height();
        } else {
            x += size.width() + (x > 0 ? spacing : 0);
            rowHeight = std::max(rowHeight, size.height());
        }
    }
    return {std::max(widest, x), total + rowHeight};
}

QList<QPointF> FlowArrangement::placed(const QList<QSizeF>& sizes, const QRectF& bounds) const {
    QList<QPointF> corners;
    corners.reserve(sizes.size());
    double x = bounds.left();
    double y = bounds.top();
    double rowHeight = 0;
    for (const QSizeF& size : sizes) {
        if (x > bounds.left() && x + size.width() > bounds.left() + bounds.width()) {
            x = bounds.left();
            y += rowHeight + rowSpacing;
            rowHeight = 0;
        }
        corners.append({x, y});
        x += size.width() + spacing;
        rowHeight = std::max(rowHeight, size.height());
    }
    return corners;
}

} // namespace kestrowind
