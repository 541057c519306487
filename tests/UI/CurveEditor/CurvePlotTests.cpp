#include "UI/CurveEditor/CurveMarks.h"
#include "UI/CurveEditor/CurveOutline.h"
#include "UI/CurveEditor/CurvePlotGeometry.h"

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(CurvePlot, MapsValuesToPlacesAndPlacesToWholeValuesInsideTheAxes) {
    const CurvePlotGeometry plot{.plotSize = {450, 200}};
    EXPECT_EQ(plot.position({65, 50}), QPointF(225, 100));
    for (const auto& [position, value] : {
             std::pair(QPointF(460, -10), FanCurvePoint{110, 100}),
             {{-30, 400}, {20, 0}},
             {{227.4, 98.9}, {65, 51}}, // 65.48 degrees, 50.55 percent
             {{227.5, 99}, {66, 51}},   // halves away from zero
         })
        EXPECT_EQ(plot.value(position), value) << position.x() << ' ' << position.y();
    EXPECT_EQ(CurvePlotGeometry{}.value({10, 10}), (FanCurvePoint{20, 0})) << "no plot at all";
    EXPECT_EQ(CurvePlotGeometry::plotIn({514, 244}), QRectF(46, 18, 450, 200));
    EXPECT_TRUE(CurvePlotGeometry::plotIn({30, 30}).isEmpty());
}

TEST(CurvePlot, APressIsMeantForTheNearestPointWithinReach) {
    const CurvePlotGeometry plot{.plotSize = {450, 200}, .points = {{40, 50}, {46, 50}, {90, 0}}};
    EXPECT_EQ(plot.pointAt({100, 100}), 0);
    EXPECT_EQ(plot.pointAt({114, 100}), 0) << "14 and 16 points away";
    EXPECT_EQ(plot.pointAt({117, 100}), 1);
    EXPECT_EQ(plot.pointAt({350, 222}), 2) << "22 points below the plot's edge";
    EXPECT_EQ(plot.pointAt({350, 222.1}), -1);
    EXPECT_EQ(plot.pointAt({200, 20}), -1);
}

TEST(CurvePlot, AClickAddsAPointOnlyAwayFromTheOthers) {
    const CurvePlotGeometry plot{.plotSize = {450, 200}, .points = {{65, 50}}};
    const auto candidate = plot.candidateAt({101, 41});
    ASSERT_TRUE(candidate);
    EXPECT_EQ(candidate->point, (FanCurvePoint{40, 80}));
    EXPECT_EQ(candidate->position, QPointF(100, 40));
    EXPECT_FALSE(plot.candidateAt({235, 100})) << "10 points beside it";
    EXPECT_FALSE(plot.candidateAt({225, 78})) << "22 points above it";
    EXPECT_FALSE(plot.candidateAt({230, 0})) << "one degree beside it";
    EXPECT_TRUE(plot.candidateAt({235, 0})) << "two degrees beside it";
}

TEST(CurveOutlines, BlendFromOneCurveToAnother) {
    const QPolygonF from = CurveOutline::of(FanCurve({{50, 40}}));
    EXPECT_EQ(CurveOutline::blended(from, CurveOutline::of(FanCurve({{60, 80}})), 0.5),
              QPolygonF({{20, 0}, {55, 0}, {55, 60}, {110, 60}}))
        << "each point moves";
    EXPECT_EQ(
        CurveOutline::blended(from, CurveOutline::of(FanCurve({{50, 40}, {80, 90}})), 0.5),
        QPolygonF({{20, 0}, {20, 0}, {50, 0}, {50, 40}, {80, 65}, {80, 65}, {110, 65}, {110, 65}}))
        << "the line is whole where one curve has a point more, and steep where it jumps";
    // Stored out of order: no function, so nothing in between.
    const QPolygonF odd =
        CurveOutline::of(FanCurve::fromStoredPoints({{50, 40}, {40, 80}, {60, 1}}));
    EXPECT_EQ(CurveOutline::blended(from, odd, 0.5), odd);
    const QPolygonF none = CurveOutline::of(FanCurve());
    EXPECT_TRUE(none.isEmpty());
    EXPECT_EQ(CurveOutline::blended(none, odd, 0.2), odd);
}

TEST(CurveCallouts, TellWhatTheFanWouldBeAskedFor) {
    const auto text = [](const FanCurvePoint& point, double minRPM) {
        return CurveCallout::textOf(point, SMCFanReading{.minRPM = minRPM, .maxRPM = 6001});
    };
    EXPECT_EQ(text({64.4, 39.6}, 1200), u"64 °C · 40% · about 3,120 rpm"_s);
    EXPECT_EQ(text({64, 140}, 1200), u"64 °C · 140% · about 6,001 rpm"_s);
    EXPECT_EQ(text({64, 40}, 6001), u"64 °C · 40% · about 6,001 rpm"_s);
    EXPECT_EQ(text({64, 0}, 1200), u"64 °C · 0% · automatic speed"_s);
    EXPECT_EQ(text({64, 40}, 1e30), u"64 °C · 40%"_s);
}

} // namespace
} // namespace kestrowind
