#include "UI/MainWindow/MainWindowFrame.h"

#include <algorithm>
#include <cmath>

namespace kestrowind::MainWindowFrame {
namespace {

/// Kept free around the largest window.
constexpr double screenMargin = 24;

} // namespace

std::optional<QRectF> fittedFrame(const HeightFit& fit) {
    if (!(fit.naturalContentHeight > 0))
        return std::nullopt;
    const QRectF& screen = fit.visibleScreen;
    const double chromeHeight = fit.frame.height() - fit.contentHeight;
    const double largest = screen.height() - chromeHeight - screenMargin;
    const double target =
        std::min(std::max(fit.naturalContentHeight, minimumContentHeight), largest);
    if (std::abs(target - fit.contentHeight) < 1)
        return std::nullopt;
    const double height = chromeHeight + target;
    const double top = std::min(fit.frame.top(), screen.bottom() - height);
    return QRectF(fit.frame.left(), top, fit.frame.width(), height);
}

std::optional<QRectF> comfortableFrame(const QRectF& frame, const QRectF& visibleScreen) {
    if (frame.width() > minimumContentWidth)
        return std::nullopt;
    QRectF widened(0, 0, comfortableWidth, frame.height());
    widened.moveCenter(visibleScreen.center());
    return widened;
}

} // namespace kestrowind::MainWindowFrame
