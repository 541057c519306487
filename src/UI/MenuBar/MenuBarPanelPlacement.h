#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace kestrowind::MenuBarPanelPlacement {

/// The panel's distance from the icon and from the edges of the screen, in points.
constexpr int gap = 6;

/// The panel's top-left corner: centred below the icon, or above one in the lower half of the
/// screen, and as far as possible within `available`.
[[nodiscard]] QPoint topLeft(const QSize& panel, const QRect& icon, const QRect& available);

} // namespace kestrowind::MenuBarPanelPlacement
