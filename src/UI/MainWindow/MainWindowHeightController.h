#pragma once

#include <QObject>
#include <QTimer>
#include <QVariantAnimation>

#include <functional>

class QWindow;

namespace kestrowind {

class MainWindowVisibility;

/// Makes the window as high as its content would like to be. Belongs to one window, for its life.
class MainWindowHeightController final : public QObject {
    Q_OBJECT

public:
    /// `contentHeight` tells how high the area under the toolbar is now, in points.
    MainWindowHeightController(QWindow& window, const MainWindowVisibility& visibility,
                               std::function<double()> contentHeight);

    /// The content's natural height is another. Dropped while the window is not on screen.
    void fitWindow(double naturalContentHeight);
    /// Another section is shown.
    void refitWindow();
    /// Ends a running movement where it was to end: nobody sees it any more.
    void finishResizing();

private:
    void resizeWindowNow();

    QWindow& m_window;
    const MainWindowVisibility& m_visibility;
    std::function<double()> m_contentHeight;
    double m_latestNaturalContentHeight = 0;
    /// The resize that waits for the end of this pass of the event loop.
    QTimer m_scheduledResize;
    QVariantAnimation m_movement;
};

} // namespace kestrowind
