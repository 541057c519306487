#pragma once

#include "UI/DesignSystem/FrameClock.h"
#include "UI/DesignSystem/PaintedItem.h"
#include "UI/DesignSystem/SpinClock.h"
#include "UI/DesignSystem/VisibilityWatch.h"

#include <QPointer>

namespace kestrowind {

/// The fan that turns: the blades are an image drawn once for each look and turned by the scene
/// graph. It asks for frames only while it turns and somebody can see it.
class SpinningFanBlades : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(double diameter MEMBER m_diameter NOTIFY lookChanged FINAL)
    Q_PROPERTY(double revolutionsPerSecond READ revolutionsPerSecond WRITE setRevolutionsPerSecond
                   NOTIFY revolutionsPerSecondChanged FINAL)
    Q_PROPERTY(Fill fill MEMBER m_fill NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)
    QML_ELEMENT

public:
    enum class Fill {
        Airflow, ///< the fan gradient
        Accent,
        Parked, ///< the tertiary text colour
    };
    Q_ENUM(Fill)

    explicit SpinningFanBlades(QQuickItem* parent = nullptr);
    ~SpinningFanBlades() override;

    [[nodiscard]] double revolutionsPerSecond() const { return m_clock.revolutionsPerSecond(); }
    /// Below 0 counts as 0. The blades go on from the angle they have.
    void setRevolutionsPerSecond(double revolutionsPerSecond);
    [[nodiscard]] bool isActive() const { return m_isActive; }
    void setActive(bool active);

    [[nodiscard]] bool isTurning() const;

Q_SIGNALS:
    void revolutionsPerSecondChanged();
    void activeChanged();

protected:
    void paint(QPainter& painter) override;
    [[nodiscard]] QRectF paintedBounds() const override { return {0, 0, m_diameter, m_diameter}; }
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

private:
    void applyTurning();

    double m_diameter = 0;
    Fill m_fill = Fill::Airflow;
    bool m_isActive = true;
    SpinClock m_clock;
    VisibilityWatch m_visibility;
    QPointer<FrameClock> m_frames; ///< while it turns
};

} // namespace kestrowind
