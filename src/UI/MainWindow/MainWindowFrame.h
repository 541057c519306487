#pragma once

#include <QRectF>

#include <optional>

/// Where the main window stands, in points, as pure arithmetic. The origin is at the top left.
namespace kestrowind::MainWindowFrame {

inline constexpr double minimumContentWidth = 780;
inline constexpr double comfortableWidth = 820;
inline constexpr double defaultHeight = 900;
inline constexpr double minimumContentHeight = 420;

/// What deciding about the height takes.
struct HeightFit {
    QRectF frame;                    ///< the window, with title bar and borders
    double contentHeight = 0;        ///< of the area under the toolbar
    double naturalContentHeight = 0; ///< what the content would like
    QRectF visibleScreen;            ///< without menu bar and Dock
};

/// The frame that shows the natural height, or as much of it as the screen has room for. The top
/// edge stays, unless the window would reach below the screen. Absent when nothing need change.
[[nodiscard]] std::optional<QRectF> fittedFrame(const HeightFit& fit);

/// For a window that opened no wider than the content can be: wider and in the middle of the
/// screen.
[[nodiscard]] std::optional<QRectF> comfortableFrame(const QRectF& frame,
                                                     const QRectF& visibleScreen);

} // namespace kestrowind::MainWindowFrame
