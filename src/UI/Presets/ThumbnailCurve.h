#pragma once

#include "Core/FanCurve.h"

#include <QObject>
#include <QPolygonF>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// The curve that a thumbnail draws.
struct ThumbnailCurve {
    Q_GADGET
    QML_VALUE_TYPE(thumbnailCurve)

public:
    static constexpr int sampleCount = 41;

    FanCurve curve = {};

    /// The line from the lowest to the highest temperature, 0 and 100 percent a little inside of
    /// the size. A curve that leaves its bounds leaves the size, too.
    [[nodiscard]] QPolygonF line(const QSizeF& size) const;

    bool operator==(const ThumbnailCurve&) const = default;
};

} // namespace kestrowind
