#include "UI/DesignSystem/SpinningFanBlades.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/FanBladesShape.h"
#include "UI/DesignSystem/Palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTransformNode>

#include <numbers>

namespace kestrowind {
namespace {

using Clock = std::chrono::steady_clock;

/// The turning part and its picture. Every frame finds it where it belongs by then.
class BladesNode final : public QSGTransformNode {
public:
    explicit BladesNode(QQuickWindow& window)
        : m_image(window.createImageNode()) {
        setFlag(UsePreprocess);
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

    /// The clock is a copy: frames may be drawn by a thread of their own.
    void setPlace(const QPointF& center, double diameter, const SpinClock& clock, bool isTurning) {
        m_isTurning = isTurning;
        m_center = center;
        m_radius = static_cast<float>(diameter / 2);
        m_clock = clock;
        turn();
    }

    void preprocess() override {
        if (m_isTurning)
            turn();
    }

private:
    void turn() {
        QMatrix4x4 matrix;
        matrix.translate(static_cast<float>(m_center.x()), static_cast<float>(m_center.y()));
        matrix.rotate(static_cast<float>(m_clock.turns(Clock::now()) * 360), 0, 0, 1);
        matrix.translate(-m_radius, -m_radius);
        setMatrix(matrix);
    }

    QSGImageNode* m_image;
    QPointF m_center;
    float m_radius = 0;
    SpinClock m_clock;
    bool m_isTurning = false;
};

} // namespace

SpinningFanBlades::SpinningFanBlades(QQuickItem* parent)
    : PaintedItem(parent)
    , m_visibility(*this) {
    connect(this, &SpinningFanBlades::lookChanged, this, [this] {
        setImplicitSize(m_diameter, m_diameter);
        applyTurning();
    });
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &SpinningFanBlades::applyTurning);
}

SpinningFanBlades::~SpinningFanBlades() {
    if (m_frames)
        m_frames->setSpeed(*this, 0);
}

void SpinningFanBlades::setRevolutionsPerSecond(double revolutionsPerSecond) {
    const double before = m_clock.revolutionsPerSecond();
    m_clock.setSpeed(revolutionsPerSecond, Clock::now());
    if (m_clock.revolutionsPerSecond() == before)
        return;
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
    blades->setPlace(boundingRect().center(), m_diameter, m_clock, isTurning());
    return blades;
}

void SpinningFanBlades::applyTurning() {
    update();
    if (m_frames)
        m_frames->setSpeed(*this, 0);
    m_frames = isTurning() ? &FrameClock::of(*window()) : nullptr;
    if (m_frames) {
        m_frames->setSpeed(*this, m_diameter * std::numbers::pi * m_clock.revolutionsPerSecond());
    }
}

} // namespace kestrowind
