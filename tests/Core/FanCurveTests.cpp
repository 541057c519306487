#include "Core/FanCurve.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestrowind {
namespace {

const FanCurve slope({{30, 0}, {45, 15}, {55, 30}});
const FanCurve storedUnsorted = FanCurve::fromStoredPoints({{50, 40}, {40, 80}});

TEST(FanCurve, EvaluatesToZeroBelowLinearBetweenAndFlatAbove) {
    struct Row {
        FanCurve curve;
        double temperature;
        double percent;
    };
    const Row rows[] = {
        {FanCurve(), 50, 0},
        {slope, 29.9, 0},
        {slope, 30, 0},
        {slope, 37.5, 7.5},
        {slope, 45, 15},
        {slope, 50, 22.5},
        {slope, 80, 30},
        {FanCurve({{20, 100}}), 19, 0},
        {FanCurve({{20, 100}}), 20, 100},
        {storedUnsorted, 45, 0},
        {storedUnsorted, 50, 80},
        {FanCurve({{40, 10}, {40, 60}}), 40, 60},
    };
    for (const Row& row : rows)
        EXPECT_DOUBLE_EQ(row.curve.percent(row.temperature), row.percent) << row.temperature;
    // Not a temperature: any answer will do, as long as there is one.
    EXPECT_EQ(slope.percent(std::numeric_limits<double>::quiet_NaN()), 30);
}

TEST(FanCurve, SortsStablyAndInsertsWithinBounds) {
    const QList<FanCurvePoint> sorted{{20, 1}, {40, 2}, {40, 3}, {60, 4}};
    EXPECT_EQ(FanCurve({{40, 2}, {60, 4}, {40, 3}, {20, 1}}).points(), sorted);

    FanCurve curve;
    curve.insert({15, 120});
    curve.insert({130, -5});
    curve.insert({50, 33});
    const QList<FanCurvePoint> inserted{{20, 100}, {50, 33}, {110, 0}};
    EXPECT_EQ(curve.points(), inserted);
}

TEST(FanCurve, MovesAPointOnlyBetweenItsNeighbours) {
    struct Row {
        qsizetype index;
        FanCurvePoint to;
        FanCurvePoint expected;
    };
    const FanCurve original({{40, 10}, {45, 20}, {50, 30}});
    const Row rows[] = {
        {0, {5, 11}, {20, 11}}, {0, {90, 11}, {44, 11}},   {1, {70, 25}, {49, 25}},
        {1, {0, 25}, {41, 25}}, {2, {130, 35}, {110, 35}},
    };
    for (const Row& row : rows) {
        FanCurve curve = original;
        curve.move(row.index, row.to);
        EXPECT_EQ(curve.points().at(row.index), row.expected) << row.index << " " << row.to.tempC;
    }

    for (const qsizetype outside : {-1, 3}) {
        FanCurve curve = original;
        curve.move(outside, {60, 60});
        EXPECT_EQ(curve, original);
    }
    const FanCurve crowded({{40, 1}, {40.5, 2}, {41, 3}});
    FanCurve curve = crowded;
    curve.move(1, {60, 60});
    EXPECT_EQ(curve, crowded);
}

} // namespace
} // namespace kestrowind
