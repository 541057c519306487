#pragma once

#include "UI/DesignSystem/FanGauge.h"
#include "UI/DesignSystem/VisibilityWatch.h"

#include <QQuickItem>
#include <QVariantAnimation>

namespace kestrowind {

/// The ring of a gauge. A new fraction is moved to from what is displayed, so a change in the
/// middle of a movement goes on from where the arc is.
class FanGaugeArcs : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(double diameter READ diameter WRITE setDiameter NOTIFY diameterChanged FINAL)
    Q_PROPERTY(double lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged FINAL)
    Q_PROPERTY(double gapDegrees READ gapDegrees WRITE setGapDegrees NOTIFY gapDegreesChanged FINAL)
    Q_PROPERTY(double fraction READ fraction WRITE setFraction NOTIFY fractionChanged FINAL)
    Q_PROPERTY(double animationDuration READ animationDuration WRITE setAnimationDuration NOTIFY
                   animationDurationChanged FINAL)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)
    QML_ELEMENT

public:
    explicit FanGaugeArcs(QQuickItem* parent = nullptr);

    [[nodiscard]] double diameter() const { return m_look.diameter; }
    void setDiameter(double diameter);
    [[nodiscard]] double lineWidth() const { return m_look.lineWidth; }
    void setLineWidth(double lineWidth);
    [[nodiscard]] double gapDegrees() const { return m_look.gapDegrees; }
    void setGapDegrees(double gapDegrees);
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
    void diameterChanged();
    void lineWidthChanged();
    void gapDegreesChanged();
    void fractionChanged();
    void animationDurationChanged();
    void activeChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

private:
    void display(double fraction);
    void adoptScheme();
    void stopUnseen();
    [[nodiscard]] bool mayMove() const;

    FanGauge::Look m_look;
    double m_fraction = 0;
    double m_displayedFraction = 0;
    double m_animationDuration = 0.6;
    bool m_isActive = true;
    VisibilityWatch m_visibility;
    QVariantAnimation m_movement;
};

} // namespace kestrowind
