#include "UI/MainWindow/MainWindowHeightController.h"

#include "UI/MainWindow/MainWindowFrame.h"
#include "UI/MainWindow/MainWindowVisibility.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <QtMath>

#include <chrono>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;

constexpr auto movementDuration = 300ms;

} // namespace

MainWindowHeightController::MainWindowHeightController(QWindow& window,
                                                       const MainWindowVisibility& visibility,
                                                       std::function<double()> contentHeight)
    : m_window(window)
    , m_visibility(visibility)
    , m_contentHeight(std::move(contentHeight)) {
    m_scheduledResize.setSingleShot(true);
    connect(&m_scheduledResize, &QTimer::timeout, this,
            &MainWindowHeightController::resizeWindowNow);

    m_movement.setDuration(static_cast<int>(movementDuration.count()));
    m_movement.setEasingCurve(QEasingCurve::OutQuad);
    connect(&m_movement, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        // Only the height and the top edge are ours: the user may move the window meanwhile.
        const QRect geometry = value.toRect();
        if (m_movement.startValue().toRect().top() == m_movement.endValue().toRect().top())
            m_window.resize(m_window.width(), geometry.height());
        else
            m_window.setGeometry(m_window.x(), geometry.y(), m_window.width(), geometry.height());
    });
}

void MainWindowHeightController::fitWindow(double naturalContentHeight) {
    if (!m_visibility.isOnScreen())
        return;
    m_latestNaturalContentHeight = naturalContentHeight;
    refitWindow();
}

void MainWindowHeightController::refitWindow() {
    m_scheduledResize.start();
}

void MainWindowHeightController::finishResizing() {
    m_scheduledResize.stop();
    if (m_movement.state() == QAbstractAnimation::Running)
        m_movement.setCurrentTime(m_movement.duration());
}

void MainWindowHeightController::resizeWindowNow() {
    const QScreen* screen =
        m_window.screen() ? m_window.screen() : QGuiApplication::primaryScreen();
    // A window that fills its screen has the height that the user gave it.
    if (!screen || m_window.windowStates().testAnyFlags(Qt::WindowMaximized | Qt::WindowFullScreen))
        return;
    m_movement.stop();
    const auto frame = MainWindowFrame::fittedFrame({
        .frame = m_window.frameGeometry(),
        .contentHeight = m_contentHeight(),
        .naturalContentHeight = m_latestNaturalContentHeight,
        .visibleScreen = screen->availableGeometry(),
    });
    if (!frame)
        return;
    // Rounded up: less than the content needs would let it scroll by a fraction of a point.
    const QRect outer(qRound(frame->x()), qRound(frame->y()), qRound(frame->width()),
                      qCeil(frame->height()));
    m_movement.setStartValue(m_window.geometry());
    m_movement.setEndValue(outer.marginsRemoved(m_window.frameMargins()));
    m_movement.start();
}

} // namespace kestrowind
