#pragma once

#include "UI/DesignSystem/PaintedItem.h"
#include "UI/DesignSystem/VisibilityWatch.h"

#include <QVariantAnimation>

namespace kestrowind {

/// The ring of a gauge. A new fraction is moved to from what is displayed, so a change in the
/// middle of a movement goes on from where the arc is.
class FanGaugeArcs : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(double diameter MEMBER m_diameter NOTIFY lookChanged FINAL)
    Q_PROPERTY(double lineWidth MEMBER m_lineWidth NOTIFY lookChanged FINAL)
    Q_PROPERTY(double gapDegrees MEMBER m_gapDegrees NOTIFY lookChanged FINAL)
    Q_PROPERTY(double fraction READ fraction WRITE setFraction NOTIFY fractionChanged FINAL)
    /// Where the fan is on its way to, as a mark on the ring; none below 0.
    Q_PROPERTY(double target MEMBER m_target NOTIFY lookChanged FINAL)
    Q_PROPERTY(double animationDuration READ animationDuration WRITE setAnimationDuration NOTIFY
                   animationDurationChanged FINAL)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)
    QML_ELEMENT

public:
    explicit FanGaugeArcs(QQuickItem* parent = nullptr);

    /// The filled part of the ring, clamped to 0...1.
    [[nodiscard]] double fraction() const { return m_fraction; }
    void setFraction(double fraction);
    /// In seconds.
    [[nodiscard]] double animationDuration() const { return m_animationDuration; }
    void setAnimationDuration(double seconds);
    [[nodiscard]] bool isActive() const { return m_isActive; }
    /// An inactive gauge shows its fraction without moving.
    void setActive(bool active);

    /// Where the filled arc ends now, on its way to fraction().
    [[nodiscard]] double displayedFraction() const { return m_displayedFraction; }
    [[nodiscard]] const QVariantAnimation& movement() const { return m_movement; }

Q_SIGNALS:
    void fractionChanged();
    void animationDurationChanged();
    void activeChanged();

protected:
    void paint(QPainter& painter) override;
    /// Round ends and ticks stand out of the gauge by no more than the line's width.
    [[nodiscard]] QRectF paintedBounds() const override;

private:
    void paintTarget(QPainter& painter, double degrees) const;
    void display(double fraction);
    void stopUnseen();
    [[nodiscard]] bool mayMove() const;

    double m_diameter = 0;
    double m_lineWidth = 0;
    double m_gapDegrees = 0; ///< the opening, centred at the bottom
    double m_fraction = 0;
    double m_displayedFraction = 0;
    double m_target = -1;
    double m_animationDuration = 0.6;
    bool m_isActive = true;
    VisibilityWatch m_visibility;
    QVariantAnimation m_movement;
};

} // namespace kestrowind
