#include "UI/MenuBar/MenuBarPanelPlacement.h"

#include <algorithm>

namespace kestrowind::MenuBarPanelPlacement {
namespace {

/// The near edge wins where there is not room enough.
int within(int wanted, int length, int from, int extent) {
    return std::max(from + gap, std::min(wanted, from + extent - length - gap));
}

} // namespace

QPoint topLeft(const QSize& panel, const QRect& icon, const QRect& available) {
    const bool isBelow = icon.center().y() < available.center().y();
    const int x = icon.x() + (icon.width() - panel.width()) / 2;
    const int y = isBelow ? icon.y() + icon.height() + gap : icon.y() - gap - panel.height();
    return {within(x, panel.width(), available.x(), available.width()),
            within(y, panel.height(), available.y(), available.height())};
}

} // namespace kestrowind::MenuBarPanelPlacement
