#include "UI/CurveEditor/FanCurveChartModel.h"

#include "Core/AssignIfChanged.h"
#include "Core/LocalizedText.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {
namespace {

constexpr double liveLabelMargin = 24; ///< of its centre from the plot's sides, points
constexpr double coarseStep = 5;       ///< with Shift, degrees or percent

} // namespace

// --- what is shown -----------------------------------------------------------------------------

void FanCurveChartModel::setCurve(const FanCurve& curve) {
    if (m_curve == curve)
        return;
    // The answer to a step of the drag comes at once; everything else is seen to move.
    setMotion(m_draggedPoint >= 0 ? Motion::None : Motion::Edit);
    m_identities.follow(m_curve.points(), curve.points());
    m_curve = curve;
    if (!isPoint(m_draggedPoint))
        setDraggedPoint(-1);
    // The keyboard stays with its point; when that is gone, the next one takes its place.
    const QPersistentModelIndex current = m_points.index(m_currentPoint);
    m_points.setRows(m_identities.rows(geometry()));
    setCurrentPoint(current.isValid() ? current.row() : m_currentPoint);
    Q_EMIT curveChanged();
    updateMarks();
    setMotion(Motion::None);
}

void FanCurveChartModel::setIsEditable(bool isEditable) {
    if (!assignIfChanged(m_isEditable, isEditable))
        return;
    if (!isEditable)
        cancelDrag();
    Q_EMIT isEditableChanged();
    updateMarks();
}

void FanCurveChartModel::setBoostPercent(double percent) {
    if (assignIfChanged(m_boostPercent, percent))
        Q_EMIT boostPercentChanged();
}

void FanCurveChartModel::setLiveTemperature(const std::optional<double>& temperature) {
    if (!assignIfChanged(m_liveTemperature, temperature))
        return;
    // A marker that appears is where it belongs at once.
    setMotion(m_live.isShown ? Motion::Live : Motion::None);
    updateMarks();
    setMotion(Motion::None);
}

void FanCurveChartModel::setFanReading(const std::optional<SMCFanReading>& fan) {
    if (assignIfChanged(m_fan, fan))
        updateMarks();
}

void FanCurveChartModel::startOver() {
    cancelDrag();
    setCurrentPoint(0);
}

void FanCurveChartModel::setSize(const QSizeF& size) {
    if (!assignIfChanged(m_plot, CurvePlotGeometry::plotIn(size)))
        return;
    m_points.setRows(m_identities.rows(geometry()));
    Q_EMIT plotChanged();
    updateMarks();
}

CurvePlotGeometry FanCurveChartModel::geometry() const {
    return {.plotSize = m_plot.size(), .points = m_curve.points()};
}

void FanCurveChartModel::setCurrentPoint(int index) {
    const int last = static_cast<int>(m_curve.points().size()) - 1;
    if (!assignIfChanged(m_currentPoint, std::clamp(index, 0, std::max(last, 0))))
        return;
    Q_EMIT currentPointChanged();
    updateMarks();
}

void FanCurveChartModel::setHasKeyboardFocus(bool hasKeyboardFocus) {
    if (!assignIfChanged(m_hasKeyboardFocus, hasKeyboardFocus))
        return;
    setLedByPointer(!hasKeyboardFocus);
    Q_EMIT hasKeyboardFocusChanged();
    updateMarks();
}

void FanCurveChartModel::setLedByPointer(bool isLedByPointer) {
    if (assignIfChanged(m_isLedByPointer, isLedByPointer))
        updateMarks();
}

void FanCurveChartModel::setDraggedPoint(int index) {
    if (!assignIfChanged(m_draggedPoint, index))
        return;
    Q_EMIT draggedPointChanged();
    updateMarks();
}

void FanCurveChartModel::setMotion(Motion motion) {
    if (assignIfChanged(m_motion, motion))
        Q_EMIT motionChanged();
}

void FanCurveChartModel::updateMarks() {
    bool didChange = assignIfChanged(
        m_hoveredPoint, m_hoverLocation && m_draggedPoint < 0 ? pointAt(*m_hoverLocation) : -1);
    // What disappears keeps its text and place.
    CurveCallout callout = m_callout;
    callout.isShown = false;
    if (const int index = pointWithCallout(); isPoint(index)) {
        const FanCurvePoint& point = m_curve.points()[index];
        callout = {.isShown = true,
                   .position = geometry().position(point),
                   .text = CurveCallout::textOf(point, m_fan)};
    }
    didChange |= assignIfChanged(m_callout, callout);
    didChange |= assignIfChanged(m_ghost, ghostAtHover());
    didChange |= assignIfChanged(m_live, liveMarker());
    if (didChange)
        Q_EMIT marksChanged();
}

int FanCurveChartModel::pointWithCallout() const {
    if (m_draggedPoint >= 0)
        return m_draggedPoint;
    const bool isAtKeyboard = m_hasKeyboardFocus && (!m_isLedByPointer || m_hoveredPoint < 0);
    return isAtKeyboard ? m_currentPoint : m_hoveredPoint;
}

CurveCallout FanCurveChartModel::ghostAtHover() const {
    if (!m_isEditable || m_draggedPoint >= 0 || !m_hoverLocation)
        return {};
    const auto candidate = geometry().candidateAt(*m_hoverLocation);
    if (!candidate)
        return {};
    return {.isShown = true,
            .position = candidate->position,
            .text = CurveCallout::textOf(candidate->point, std::nullopt)};
}

CurveLiveMarker FanCurveChartModel::liveMarker() const {
    if (!m_liveTemperature || !std::isfinite(*m_liveTemperature))
        return {};
    const CurvePlotGeometry plot = geometry();
    const double x = plot.x(
        std::clamp(*m_liveTemperature, FanCurve::lowestTemperature, FanCurve::highestTemperature));
    const double rightmost = std::max(m_plot.width() - liveLabelMargin, liveLabelMargin);
    const double percent = m_curve.percent(*m_liveTemperature);
    const auto actual = CurveLiveMarker::actualPercent(m_fan);
    return {.isShown = true,
            .x = x,
            .operatingY = plot.position({*m_liveTemperature, percent}).y(),
            .labelX = std::clamp(x, liveLabelMargin, rightmost),
            .temperature = *m_liveTemperature,
            .text = localized("curves.chart.axisDegrees").arg(std::lround(*m_liveTemperature)),
            .operatingText = CurveLiveMarker::operatingTextOf(percent, m_fan),
            .hasActual = actual.has_value(),
            .actualY = plot.y(actual.value_or(0))};
}

// --- pointers ----------------------------------------------------------------------------------

void FanCurveChartModel::setHoverLocation(const std::optional<QPointF>& location) {
    if (!assignIfChanged(m_hoverLocation, location))
        return;
    m_isLedByPointer = true;
    updateMarks();
}

int FanCurveChartModel::pointAt(const QPointF& position) const {
    // Where a click would add a point, no other one is meant.
    return m_isEditable && !geometry().candidateAt(position) ? geometry().pointAt(position) : -1;
}

void FanCurveChartModel::press(int index) {
    setCurrentPoint(index);
    setHasKeyboardFocus(false);
    setLedByPointer(true);
}

void FanCurveChartModel::drag(int index, const QPointF& position) {
    if (!m_isEditable || !isPoint(index))
        return;
    setDraggedPoint(index);
    setCurrentPoint(index);
    Q_EMIT movePoint(index, geometry().value(position), false);
}

void FanCurveChartModel::release(const QPointF& position) {
    if (m_draggedPoint < 0)
        return;
    Q_EMIT movePoint(m_draggedPoint, geometry().value(position), true);
    setDraggedPoint(-1);
}

void FanCurveChartModel::cancelDrag() {
    if (m_draggedPoint < 0)
        return;
    setDraggedPoint(-1);
    Q_EMIT dragCancelled();
}

bool FanCurveChartModel::click(const QPointF& position) {
    return m_isEditable && m_draggedPoint < 0 && add(geometry().candidateAt(position));
}

bool FanCurveChartModel::add(const std::optional<Candidate>& candidate) {
    if (!candidate)
        return false;
    const QList<FanCurvePoint>& points = m_curve.points();
    const qsizetype count = points.size();
    Q_EMIT addPoint(candidate->point);
    if (points.size() == count)
        return false;
    const auto added = std::ranges::find(points, candidate->point.tempC, &FanCurvePoint::tempC);
    setCurrentPoint(static_cast<int>(added - points.begin()));
    return true;
}

void FanCurveChartModel::deletePoint(int index) {
    if (m_isEditable && isPoint(index))
        Q_EMIT deletePointRequested(index);
}

void FanCurveChartModel::requestContextMenu(int index) {
    if (m_isEditable && isPoint(index))
        Q_EMIT contextMenuRequested(index);
}

// --- keys --------------------------------------------------------------------------------------

bool FanCurveChartModel::pressKey(int index, int key, Qt::KeyboardModifiers modifiers) {
    if (!isPoint(index))
        return false;
    setLedByPointer(false);
    if (m_draggedPoint >= 0) {
        // One hand at a time; the way out is always open.
        if (key == Qt::Key_Escape)
            cancelDrag();
        return true;
    }
    const bool isShifted = modifiers.testFlag(Qt::ShiftModifier);
    if ((modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier)
        return false;
    if (choosePoint(key))
        return true;
    if (!m_isEditable)
        return false;
    switch (key) {
    case Qt::Key_Insert:
    case Qt::Key_N:
        add(candidateAfter(index));
        return true;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        deletePoint(index);
        return true;
    case Qt::Key_Menu:
        requestContextMenu(index);
        return true;
    case Qt::Key_F10:
        if (isShifted)
            requestContextMenu(index);
        return isShifted;
    default:
        return nudge(index, key, isShifted ? coarseStep : fineStep);
    }
}

bool FanCurveChartModel::choosePoint(int key) {
    switch (key) {
    case Qt::Key_PageUp:
        setCurrentPoint(m_currentPoint - 1);
        return true;
    case Qt::Key_PageDown:
        setCurrentPoint(m_currentPoint + 1);
        return true;
    case Qt::Key_Home:
        setCurrentPoint(0);
        return true;
    case Qt::Key_End:
        setCurrentPoint(static_cast<int>(m_curve.points().size()) - 1);
        return true;
    default:
        return false;
    }
}

bool FanCurveChartModel::nudge(int index, int key, double step) {
    FanCurvePoint to = m_curve.points()[index];
    switch (key) {
    case Qt::Key_Left:
        to.tempC -= step;
        break;
    case Qt::Key_Right:
        to.tempC += step;
        break;
    case Qt::Key_Down:
        to.percent -= step;
        break;
    case Qt::Key_Up:
        to.percent += step;
        break;
    default:
        return false;
    }
    requestNudge(index, to);
    return true;
}

void FanCurveChartModel::requestNudge(int index, const FanCurvePoint& to) {
    Q_EMIT nudgePoint(index, {.tempC = std::clamp(to.tempC, FanCurve::lowestTemperature,
                                                  FanCurve::highestTemperature),
                              .percent = std::clamp(to.percent, 0.0, FanCurve::highestPercent)});
}

void FanCurveChartModel::setPercent(int index, double percent) {
    if (!m_isEditable || !isPoint(index) || m_draggedPoint >= 0 || !std::isfinite(percent))
        return;
    setLedByPointer(false);
    setCurrentPoint(index);
    requestNudge(index, {m_curve.points()[index].tempC, std::round(percent)});
}

void FanCurveChartModel::addPointAnywhere() {
    if (!m_isEditable || m_draggedPoint >= 0)
        return;
    const double temperature = m_liveTemperature.value_or(FanCurve::lowestTemperature);
    const CurvePlotGeometry plot = geometry();
    if (!add(plot.candidateAt(plot.position({temperature, m_curve.percent(temperature)}))))
        add(candidateAfter(m_currentPoint));
}

std::optional<CurvePlotGeometry::Candidate> FanCurveChartModel::candidateAfter(int index) const {
    if (!isPoint(index))
        return std::nullopt;
    const FanCurvePoint& point = m_curve.points()[index];
    // After the last point the curve runs flat to the end of the axis.
    const FanCurvePoint next = isPoint(index + 1)
                                   ? m_curve.points()[index + 1]
                                   : FanCurvePoint{FanCurve::highestTemperature, point.percent};
    return geometry().candidateAt((geometry().position(point) + geometry().position(next)) / 2);
}

} // namespace kestrowind
