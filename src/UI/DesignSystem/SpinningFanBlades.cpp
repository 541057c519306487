#include "UI/DesignSystem/SpinningFanBlades.h"

#include "Core/AssignIfChanged.h"
#include "UI/DesignSystem/FanBladesShape.h"
#include "UI/DesignSystem/FrameGrid.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QLinearGradient>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTransformNode>

#include <cmath>

namespace kestrowind {
namespace {

using Clock = std::chrono::steady_clock;

/// The scale of an item that is in no window yet.
constexpr double scaleWithoutWindow = 2.0;

QBrush paint(const SpinningFanBlades::RenderedLook& look) {
    const ColorScheme scheme = look.isDarkAppearance ? ColorScheme::dark : ColorScheme::light;
    switch (look.fill) {
    case SpinningFanBlades::Fill::Airflow: {
        QLinearGradient gradient(0, 0, look.diameter, look.diameter);
        gradient.setStops(Palette::fanGradientStops());
        return gradient;
    }
    case SpinningFanBlades::Fill::Accent:
        return Palette::color(Palette::Role::accent, scheme, look.accent);
    case SpinningFanBlades::Fill::Parked:
        return Palette::color(Palette::Role::tertiaryText, scheme);
    }
    Q_UNREACHABLE();
}

/// The turning part and its picture.
class BladesNode final : public QSGTransformNode {
public:
    explicit BladesNode(QQuickWindow& window)
        : m_image(window.createImageNode()) {
        m_image->setFiltering(QSGTexture::Linear);
        m_image->setOwnsTexture(true);
        appendChildNode(m_image);
    }

    void setImage(QQuickWindow& window, const QImage& image, double diameter) {
        QSGTexture* texture =
            window.createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel);
        texture->setFiltering(QSGTexture::Linear);
        m_image->setTexture(texture);
        m_image->setSourceRect(QRectF(QPointF(), texture->textureSize()));
        m_image->setRect(0, 0, diameter, diameter);
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
    : QQuickItem(parent)
    , m_visibility(*this) {
    setFlag(ItemHasContents);
    m_nextFrame.setSingleShot(true);
    m_nextFrame.setTimerType(Qt::PreciseTimer);
    connect(&m_nextFrame, &QTimer::timeout, this, &SpinningFanBlades::requestFrame);
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &SpinningFanBlades::applyTurning);
}

void SpinningFanBlades::setDiameter(double diameter) {
    if (!assignIfChanged(m_diameter, diameter))
        return;
    setImplicitSize(diameter, diameter);
    lookChanged();
    Q_EMIT diameterChanged();
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

void SpinningFanBlades::setFill(Fill fill) {
    if (!assignIfChanged(m_fill, fill))
        return;
    lookChanged();
    Q_EMIT fillChanged();
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

QImage SpinningFanBlades::bladesImage(const RenderedLook& look) {
    const int side = static_cast<int>(std::ceil(look.diameter * look.scale));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / look.diameter, side / look.diameter);
    painter.fillPath(FanBladesShape::path(QRectF(0, 0, look.diameter, look.diameter)), paint(look));
    return image;
}

void SpinningFanBlades::componentComplete() {
    QQuickItem::componentComplete();
    if (QQmlEngine* engine = qmlEngine(this)) {
        const SceneAppearance& appearance = SceneAppearance::of(*engine);
        connect(&appearance, &SceneAppearance::colorSchemeChanged, this,
                &SpinningFanBlades::lookChanged);
        connect(&appearance, &SceneAppearance::accentColorChanged, this,
                &SpinningFanBlades::lookChanged);
    }
    lookChanged();
    applyTurning();
}

void SpinningFanBlades::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        lookChanged();
    QQuickItem::itemChange(change, data);
}

void SpinningFanBlades::updatePolish() {
    QQmlEngine* engine = qmlEngine(this);
    const RenderedLook look{
        .diameter = m_diameter,
        .fill = m_fill,
        .scale = window() ? window()->effectiveDevicePixelRatio() : scaleWithoutWindow,
        .isDarkAppearance = engine && SceneAppearance::of(*engine).isDark(),
        .accent = engine ? SceneAppearance::of(*engine).accentColor() : std::nullopt,
    };
    if (look == m_renderedLook || look.diameter <= 0)
        return;
    m_renderedLook = look;
    m_blades = bladesImage(look);
    m_bladesAreNew = true;
    update();
    Q_EMIT bladesRendered();
}

QSGNode* SpinningFanBlades::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
    auto* blades = static_cast<BladesNode*>(node);
    if (m_blades.isNull()) {
        delete blades;
        return nullptr;
    }
    const bool isNew = !blades;
    if (isNew)
        blades = new BladesNode(*window());
    if (isNew || m_bladesAreNew) {
        blades->setImage(*window(), m_blades, m_diameter);
        m_bladesAreNew = false;
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
