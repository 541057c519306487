#pragma once

#include "Core/FanCurve.h"

#include <QPolygonF>

/// A curve as the line that is drawn of it, in values: x in degrees Celsius, y in percent.
namespace kestrowind::CurveOutline {

/// From the lowest temperature along 0 % to the first point, up to it, through all points, and flat
/// to the highest temperature: what FanCurve::percent() evaluates to. Empty without points.
[[nodiscard]] QPolygonF of(const FanCurve& curve);

/// On the way from one outline to another; progress 0 is `from`, 1 is `to`, and a spring goes
/// beyond. With as many vertices each moves to its counterpart, else every temperature's percent
/// moves by itself.
[[nodiscard]] QPolygonF blended(const QPolygonF& from, const QPolygonF& to, double progress);

} // namespace kestrowind::CurveOutline
