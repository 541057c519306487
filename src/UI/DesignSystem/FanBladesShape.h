#pragma once

#include <QPainterPath>
#include <QRectF>

namespace kestrowind::FanBladesShape {

/// Three blades and a hub, centred in the rectangle and as large as its shorter side allows. To be
/// filled by the winding rule: blades and hub overlap.
[[nodiscard]] QPainterPath path(const QRectF& rectangle);

} // namespace kestrowind::FanBladesShape
