#pragma once

#include "UI/CurveEditor/CurveMarks.h"
#include "UI/CurveEditor/CurvePlotGeometry.h"
#include "UI/CurveEditor/CurvePointRow.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace kestrowind {

/// What the curve editor's chart shows and what a pointer, a finger or the keyboard does to it. It
/// never changes the curve: it asks its owner to, who answers with setCurve(). Positions are in
/// points from the plot's upper left corner. Belongs to the main thread.
class FanCurveChartModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isEditable READ isEditable NOTIFY isEditableChanged FINAL)
    Q_PROPERTY(bool canDelete READ canDelete NOTIFY curveChanged FINAL)
    Q_PROPERTY(QRectF plot READ plot NOTIFY plotChanged FINAL)
    Q_PROPERTY(kestrowind::RowList* points READ points CONSTANT FINAL)
    Q_PROPERTY(Motion motion READ motion NOTIFY motionChanged FINAL)
    Q_PROPERTY(int draggedPoint READ draggedPoint NOTIFY draggedPointChanged FINAL)
    Q_PROPERTY(int hoveredPoint READ hoveredPoint NOTIFY marksChanged FINAL)
    Q_PROPERTY(bool isIdle READ isIdle NOTIFY marksChanged FINAL)
    Q_PROPERTY(
        int currentPoint READ currentPoint WRITE setCurrentPoint NOTIFY currentPointChanged FINAL)
    Q_PROPERTY(bool isLedByPointer READ isLedByPointer NOTIFY marksChanged FINAL)
    Q_PROPERTY(bool hasKeyboardFocus READ hasKeyboardFocus WRITE setHasKeyboardFocus NOTIFY
                   hasKeyboardFocusChanged FINAL)
    Q_PROPERTY(kestrowind::CurveCallout callout READ callout NOTIFY marksChanged FINAL)
    Q_PROPERTY(kestrowind::CurveCallout ghost READ ghost NOTIFY marksChanged FINAL)
    Q_PROPERTY(kestrowind::CurveLiveMarker live READ live NOTIFY marksChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the screen's model")

public:
    /// How what is being told moves to its new place.
    enum class Motion {
        None, ///< at once: it follows the pointer, or the window's size
        Edit, ///< the curve is another
        Live, ///< the temperature is another
    };
    Q_ENUM(Motion)

    /// Of a key that moves a point; degrees or percent.
    static constexpr double fineStep = 1;

    using QObject::QObject;

    // What is shown; the owner's.
    void setCurve(const FanCurve& curve);
    void setIsEditable(bool isEditable);
    /// The quick boost in percent; 0 is none. No curve's demand counts below it.
    [[nodiscard]] double boostPercent() const { return m_boostPercent; }
    void setBoostPercent(double percent);
    /// The temperature that drives the curve, degrees Celsius; absent hides the live marker.
    void setLiveTemperature(const std::optional<double>& temperature);
    /// A fan to estimate speeds for.
    void setFanReading(const std::optional<SMCFanReading>& fan);
    /// Another curve, not another state of the same: a gesture ends, the first point is current.
    void startOver();

    /// Of the whole chart with its axes.
    void setSize(const QSizeF& size);

    [[nodiscard]] const FanCurve& curve() const { return m_curve; }
    [[nodiscard]] bool isEditable() const { return m_isEditable; }
    [[nodiscard]] bool canDelete() const { return m_curve.points().size() > 1; }
    [[nodiscard]] const QRectF& plot() const { return m_plot; }
    [[nodiscard]] CurvePlotGeometry geometry() const;
    /// By their order.
    [[nodiscard]] CurvePointRows* points() { return &m_points; }
    [[nodiscard]] Motion motion() const { return m_motion; }
    /// These are -1 for none.
    [[nodiscard]] int draggedPoint() const { return m_draggedPoint; }
    [[nodiscard]] int hoveredPoint() const { return m_hoveredPoint; }
    /// Whether the pointer is offered nothing: no point to take, none to add.
    [[nodiscard]] bool isIdle() const {
        return m_draggedPoint < 0 && m_hoveredPoint < 0 && !m_ghost.isShown;
    }
    /// The point that the keyboard works on, now or when it next comes to the chart.
    [[nodiscard]] int currentPoint() const { return m_currentPoint; }
    void setCurrentPoint(int index);
    [[nodiscard]] bool hasKeyboardFocus() const { return m_hasKeyboardFocus; }
    void setHasKeyboardFocus(bool hasKeyboardFocus);
    /// Whether what was last used is the pointer, and not the keyboard.
    [[nodiscard]] bool isLedByPointer() const { return m_isLedByPointer; }
    /// The values of the point that is dragged, else of the one that is pointed at or worked on by
    /// keyboard: of what was last used.
    [[nodiscard]] const CurveCallout& callout() const { return m_callout; }
    /// The point that a click would add.
    [[nodiscard]] const CurveCallout& ghost() const { return m_ghost; }
    [[nodiscard]] const CurveLiveMarker& live() const { return m_live; }

    // What pointers do.
    /// Absent when the pointer is not over the plot.
    void setHoverLocation(const std::optional<QPointF>& location);
    /// The point that a press there is meant for; -1 for none, and while nothing can be edited.
    [[nodiscard]] int pointAt(const QPointF& position) const;
    /// The point becomes the current one.
    void press(int index);
    /// Begins dragging the point, or goes on.
    void drag(int index, const QPointF& position);
    /// Ends a drag where it was let go.
    void release(const QPointF& position);
    /// Ends a drag as if it had not been.
    void cancelDrag();
    /// Adds a point where there is room, which becomes the current one; false where there is none.
    bool click(const QPointF& position);
    Q_INVOKABLE void deletePoint(int index);
    void requestContextMenu(int index);

    /// What a key does to a point; false leaves the key to others.
    bool pressKey(int index, int key, Qt::KeyboardModifiers modifiers);
    Q_INVOKABLE bool pressKey(int index, int key, int modifiers) {
        return pressKey(index, key, Qt::KeyboardModifiers(modifiers));
    }
    // What assistive technology does beside that.
    Q_INVOKABLE void setPercent(int index, double percent);
    /// Adds a point at the live temperature, or else after the current one.
    Q_INVOKABLE void addPointAnywhere();
    Q_INVOKABLE bool hasRoomAfter(int index) const { return candidateAfter(index).has_value(); }

Q_SIGNALS:
    /// A point is to go to whole degrees and percent inside the axes; only the final step is to be
    /// kept.
    void movePoint(int index, const kestrowind::FanCurvePoint& to, bool isFinal);
    /// The same by keyboard, a small step of perhaps many.
    void nudgePoint(int index, const kestrowind::FanCurvePoint& to);
    void addPoint(const kestrowind::FanCurvePoint& point);
    void deletePointRequested(int index);
    /// The steps since the last final one are to be forgotten.
    void dragCancelled();
    void contextMenuRequested(int index);

    void curveChanged();
    void isEditableChanged();
    void boostPercentChanged();
    void plotChanged();
    void motionChanged();
    void draggedPointChanged();
    void currentPointChanged();
    void hasKeyboardFocusChanged();
    void marksChanged();

private:
    void setDraggedPoint(int index);
    void setMotion(Motion motion);
    void updateMarks();
    [[nodiscard]] int pointWithCallout() const;
    [[nodiscard]] CurveCallout ghostAtHover() const;
    [[nodiscard]] CurveLiveMarker liveMarker() const;
    [[nodiscard]] bool isPoint(int index) const {
        return index >= 0 && index < m_curve.points().size();
    }
    bool choosePoint(int key);
    bool nudge(int index, int key, double step);
    void requestNudge(int index, const FanCurvePoint& to);
    using Candidate = CurvePlotGeometry::Candidate;
    [[nodiscard]] std::optional<Candidate> candidateAfter(int index) const;
    bool add(const std::optional<Candidate>& candidate);
    void setLedByPointer(bool isLedByPointer);

    FanCurve m_curve;
    bool m_isEditable = false;
    std::optional<double> m_liveTemperature;
    double m_boostPercent = 0;
    std::optional<SMCFanReading> m_fan;
    QRectF m_plot;
    CurvePointIdentities m_identities;
    CurvePointRows m_points;
    Motion m_motion = Motion::None;
    int m_draggedPoint = -1;
    int m_hoveredPoint = -1;
    int m_currentPoint = 0;
    bool m_hasKeyboardFocus = false;
    bool m_isLedByPointer = false;
    std::optional<QPointF> m_hoverLocation;
    CurveCallout m_callout;
    CurveCallout m_ghost;
    CurveLiveMarker m_live;
};

} // namespace kestrowind
