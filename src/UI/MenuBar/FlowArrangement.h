#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <optional>

namespace kestrowind {

/// Places boxes of given sizes one after another in rows, like words. Lengths in points. A box
/// wider than the whole width has a row of its own and overflows it.
struct FlowArrangement {
    double spacing = 0;    ///< between neighbours in a row
    double rowSpacing = 0; ///< between rows

    /// The size that the boxes need; without a width they all stand in one row.
    [[nodiscard]] QSizeF measured(const QList<QSizeF>& sizes, std::optional<double> width) const;
    /// The top-left corner of each box.
    [[nodiscard]] QList<QPointF> placed(const QList<QSizeF>& sizes, const QRectF& bounds) const;
};

} // namespace kestrowind
