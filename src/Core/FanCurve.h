#pragma once

#include <QHashFunctions>
#include <QList>

namespace kestrowind {

/// One point of a fan curve.
struct FanCurvePoint {
    double tempC = 0;   ///< degrees Celsius
    double percent = 0; ///< fan demand, 0 to 100

    bool operator==(const FanCurvePoint&) const = default;
};

/// A fan's demand in percent by temperature, linear between points. 0 % is no demand above the
/// fan's own minimum, 100 % its maximum speed.
///
/// Editing keeps the points in ascending temperature inside the bounds below; decoded points are
/// kept and evaluated as they were stored.
class FanCurve {
public:
    static constexpr double lowestTemperature = 20;   ///< degrees Celsius
    static constexpr double highestTemperature = 110; ///< degrees Celsius
    static constexpr double highestPercent = 100;
    /// Least distance of a moved point from its neighbours, degrees Celsius.
    static constexpr double movedPointDistance = 1;
    /// Least distance of an added point from every other, degrees Celsius; the editor's rule.
    static constexpr double addedPointDistance = 2;

    FanCurve() = default;
    /// Sorts by temperature; equal temperatures stay in their order.
    explicit FanCurve(QList<FanCurvePoint> points);
    /// Keeps the order as it is.
    [[nodiscard]] static FanCurve fromStoredPoints(QList<FanCurvePoint> points);

    [[nodiscard]] const QList<FanCurvePoint>& points() const { return m_points; }

    /// The demand at a temperature: 0 below the first point, flat after the last one. Not clamped.
    [[nodiscard]] double percent(double temperature) const;

    /// Whether a point added at this temperature keeps its distance from every other.
    [[nodiscard]] bool hasRoomAt(double temperature) const;

    /// Adds a point, clamped to the bounds, in its place.
    void insert(FanCurvePoint point);
    /// Moves a point within its neighbours' bounds, so that the order never changes. An index out
    /// of range, or neighbours too close together, changes nothing. The percent is stored as given.
    void move(qsizetype index, const FanCurvePoint& to);
    /// The index must be valid.
    void remove(qsizetype index);

    bool operator==(const FanCurve&) const = default;

private:
    QList<FanCurvePoint> m_points;
};

[[nodiscard]] size_t qHash(const FanCurvePoint& point, size_t seed = 0) noexcept;
[[nodiscard]] size_t qHash(const FanCurve& curve, size_t seed = 0) noexcept;

} // namespace kestrowind
