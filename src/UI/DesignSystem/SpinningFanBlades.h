#pragma once

#include "Platform/SystemAppearance.h"
#include "UI/DesignSystem/SpinClock.h"
#include "UI/DesignSystem/VisibilityWatch.h"

#include <QImage>
#include <QQuickItem>
#include <QTimer>

#include <cstdint>
#include <optional>

namespace kestrowind {

/// The fan that turns: the blades are an image drawn once for each look and turned by the scene
/// graph. It asks for frames only while it turns and somebody can see it.
class SpinningFanBlades : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(double diameter READ diameter WRITE setDiameter NOTIFY diameterChanged FINAL)
    Q_PROPERTY(double revolutionsPerSecond READ revolutionsPerSecond WRITE setRevolutionsPerSecond
                   NOTIFY revolutionsPerSecondChanged FINAL)
    Q_PROPERTY(Fill fill READ fill WRITE setFill NOTIFY fillChanged FINAL)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)
    QML_ELEMENT

public:
    enum class Fill {
        Airflow, ///< the fan gradient
        Accent,
        Parked, ///< the tertiary text colour
    };
    Q_ENUM(Fill)

    /// What the image of the blades depends on.
    struct RenderedLook {
        double diameter = 0;
        Fill fill = Fill::Airflow;
        double scale = 0; ///< device pixels a point
        bool isDarkAppearance = false;
        std::optional<QColor> accent = {}; ///< the user's

        bool operator==(const RenderedLook&) const = default;
    };

    explicit SpinningFanBlades(QQuickItem* parent = nullptr);

    [[nodiscard]] double diameter() const { return m_diameter; }
    void setDiameter(double diameter);
    [[nodiscard]] double revolutionsPerSecond() const { return m_clock.revolutionsPerSecond(); }
    /// Below 0 counts as 0. The blades go on from the angle they have.
    void setRevolutionsPerSecond(double revolutionsPerSecond);
    [[nodiscard]] Fill fill() const { return m_fill; }
    void setFill(Fill fill);
    [[nodiscard]] bool isActive() const { return m_isActive; }
    void setActive(bool active);

    [[nodiscard]] const std::optional<RenderedLook>& renderedLook() const { return m_renderedLook; }
    [[nodiscard]] bool isTurning() const;

    [[nodiscard]] static QImage bladesImage(const RenderedLook& look);

Q_SIGNALS:
    void diameterChanged();
    void revolutionsPerSecondChanged();
    void fillChanged();
    void activeChanged();
    /// The blades were drawn anew.
    void bladesRendered();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

private:
    void lookChanged() { polish(); }
    void applyTurning();
    void frameShown();
    void requestFrame();

    double m_diameter = 0;
    Fill m_fill = Fill::Airflow;
    bool m_isActive = true;
    SpinClock m_clock;
    VisibilityWatch m_visibility;
    std::optional<RenderedLook> m_renderedLook;
    QImage m_blades;
    bool m_bladesAreNew = false;
    QTimer m_nextFrame;
    std::int64_t m_lastTick = 0; ///< of the grid of frames, when a frame was last requested
    QMetaObject::Connection m_frameShown;
};

} // namespace kestrowind
