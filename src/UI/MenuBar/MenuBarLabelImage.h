#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace kestrowind {

struct MenuBarReading;

/// The reading as a picture. Pure: the same inputs give the same picture.
namespace MenuBarLabelImage {

/// Two centred lines with no gap between them, in black, for a menu bar that colours the picture
/// itself. `scale` is device pixels a point.
[[nodiscard]] QImage label(const MenuBarReading& reading, double scale);

/// The two numbers fitted into a square of `side` device pixels for a tray that shows small square
/// icons. The ink has a faint edge in its opposite, since nobody knows what it will stand on.
[[nodiscard]] QImage square(const MenuBarReading& reading, int side, const QColor& ink);

} // namespace MenuBarLabelImage
} // namespace kestrowind
