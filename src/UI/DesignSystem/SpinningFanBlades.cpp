#include "UI/DesignSystem/SpinningFanBlades.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/FanBladesShape.h"
#include "UI/DesignSystem/FrameGrid.h"
#include "UI/DesignSystem/Palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTransformNode>

namespace kestrowind {
namespace {

using Clock = std::chrono::steady_clock;

/// The turning part and its picture.
class BladesNode final : public QSGTransformNode {
public:
    explicit BladesNode(QQuickWindow& window)
        : m_image(window.createImageNode()) {
        m_image->setFiltering(QSGTexture::Linear);
        m_image->setOwnsTexture(true);
        appendChildNode(m_image);
    }

    void setPicture(QQuickWindow& window, const QImage& picture, const QRectF& bounds) {
        m_image->setTexture(
            window.createTextureFromImage(picture, QQuickWindow::TextureHasAlphaChannel));
        m_image->setSourceRect(picture.rect());
        m_image->setRect(bounds);
    }

    void setTurns(double turns, const QPointF& offset, double diameter) {
        const auto radius = static_cast<float>(diameter / 2);
        QMatrix4x4 matrix;
        matrix.translate(static_cast<float>(offset.x()) + radius,
                         static_cast<float>(offset.y()) + radius);
        matrix.rotate(static_cast<float>(turns * 360), 0, 0, 1);
        matrix.translate(-radius, -radius);
        setMatrix(matrix);
    }

private:
    QSGImageNode* m_image;
};

} // namespace

SpinningFanBlades::SpinningFanBlades(QQuickItem* parent)
    : PaintedItem(parent)
    , m_visibility(*this) {
    connect(this, &SpinningFanBlades::lookChanged, this,
            [this] { setImplicitSize(m_diameter, m_diameter); });
    m_nextFrame.setSingleShot(true);
    m_nextFrame.setTimerType(Qt::PreciseTimer);
    connect(&m_nextFrame, &QTimer::timeout, this, &SpinningFanBlades::requestFrame);
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &SpinningFanBlades::applyTurning);
}

void SpinningFanBlades::setRevolutionsPerSecond(double revolutionsPerSecond) {
    const double before = m_clock.revolutionsPerSecond();
    m_clock.setSpeed(revolutionsPerSecond, Clock::now());
    if (m_clock.revolutionsPerSecond() == before)
        return;
    update();
    applyTurning();
    Q_EMIT revolutionsPerSecondChanged();
}

void SpinningFanBlades::setActive(bool active) {
    if (!assignIfChanged(m_isActive, active))
        return;
    applyTurning();
    Q_EMIT activeChanged();
}

bool SpinningFanBlades::isTurning() const {
    return m_isActive && m_visibility.isSeen() && m_clock.revolutionsPerSecond() > 0;
}

void SpinningFanBlades::paint(QPainter& painter) {
    QBrush brush;
    switch (m_fill) {
    case Fill::Airflow: {
        QLinearGradient gradient(0, 0, m_diameter, m_diameter);
        gradient.setStops(Palette::fanGradientStops());
        brush = gradient;
        break;
    }
    case Fill::Accent:
        brush = colors().accent;
        break;
    case Fill::Parked:
        brush = colors().tertiaryText;
        break;
    }
    painter.fillPath(FanBladesShape::path(paintedBounds()), brush);
}

QSGNode* SpinningFanBlades::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
    auto* blades = static_cast<BladesNode*>(node);
    if (m_diameter <= 0) {
        delete blades;
        return nullptr;
    }
    const bool isNew = !blades;
    if (isNew)
        blades = new BladesNode(*window());
    if (isNew || isPictureStale()) {
        const QRectF bounds = pictureBounds();
        blades->setPicture(*window(), takePicture(bounds), bounds);
    }
    const QPointF offset((width() - m_diameter) / 2, (height() - m_diameter) / 2);
    blades->setTurns(m_clock.turns(Clock::now()), offset, m_diameter);
    return blades;
}

void SpinningFanBlades::applyTurning() {
    if (!isTurning()) {
        m_nextFrame.stop();
        disconnect(m_frameShown);
        m_frameShown = {};
        return;
    }
    if (m_frameShown)
        return;
    m_frameShown = connect(window(), &QQuickWindow::frameSwapped, this,
                           &SpinningFanBlades::frameShown, Qt::QueuedConnection);
    requestFrame();
}

void SpinningFanBlades::frameShown() {
    if (!m_frameShown || m_nextFrame.isActive())
        return;
    if (FrameGrid::tick(*window()) != m_lastTick)
        requestFrame();
    else
        m_nextFrame.start(FrameGrid::untilNextTick(*window()));
}

void SpinningFanBlades::requestFrame() {
    m_lastTick = FrameGrid::tick(*window());
    update();
}

} // namespace kestrowind
