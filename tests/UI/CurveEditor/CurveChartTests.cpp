#include "UI/CurveEditor/CurveOwner.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// A plot of 450 by 200: 5 points a degree, 2 a percent.
class CurveChart : public testing::Test {
protected:
    CurveChart() { chart.setSize({450 + 64, 200 + 44}); }

    CurveOwner owner{FanCurve({{40, 20}, {60, 50}, {80, 100}})};
    FanCurveChartModel& chart = owner.chart;
};

TEST_F(CurveChart, ShowsTheTemperatureAndWhatTheCurveMakesOfIt) {
    EXPECT_FALSE(chart.live().isShown);
    QSignalSpy motion(&chart, &FanCurveChartModel::motionChanged);
    chart.setLiveTemperature(49);
    EXPECT_EQ(motion.size(), 0) << "it does not fly in";
    chart.setLiveTemperature(51);
    EXPECT_EQ(motion.size(), 2) << "but glides on";
    struct Row {
        double temperature;
        double x;
        double y;
        double labelX;
        QString text;
    };
    for (const auto& [temperature, x, y, labelX, text] : {
             Row{50, 150, 200 - 70, 150, u"50 °C"_s},
             Row{130, 450, 0, 426, u"130 °C"_s},
             Row{10, 0, 200, 24, u"10 °C"_s},
         }) {
        chart.setLiveTemperature(temperature);
        const CurveLiveMarker live = chart.live();
        EXPECT_TRUE(live.isShown);
        EXPECT_DOUBLE_EQ(live.x, x) << temperature;
        EXPECT_DOUBLE_EQ(live.operatingY, y) << temperature;
        EXPECT_DOUBLE_EQ(live.labelX, labelX) << temperature;
        EXPECT_EQ(live.text, text);
    }
    chart.setSize({900 + 64, 200 + 44});
    chart.setLiveTemperature(65);
    EXPECT_EQ(chart.live().x, 450);
    chart.setSize({450 + 64, 200 + 44});
    EXPECT_EQ(chart.live().x, 225) << "it stays at its temperature";
    for (const std::optional<double> none :
         {std::optional(std::numeric_limits<double>::quiet_NaN()), std::optional<double>()}) {
        chart.setLiveTemperature(none);
        EXPECT_FALSE(chart.live().isShown);
    }
}

TEST_F(CurveChart, FollowsADragAndForgetsACancelledOne) {
    QSignalSpy motion(&chart, &FanCurveChartModel::motionChanged);
    chart.setHoverLocation(QPointF(50, 41));
    chart.drag(1, {250, 60});
    EXPECT_FALSE(chart.ghost().isShown) << "nothing is added while dragging";
    EXPECT_EQ(chart.callout().text, u"70 °C · 70%"_s);
    chart.drag(1, {800, -50});
    EXPECT_EQ(chart.callout().text, u"79 °C · 100%"_s) << "held by its neighbour";
    EXPECT_EQ(motion.size(), 0) << "it is where the pointer is, at once";
    chart.cancelDrag();
    EXPECT_EQ(motion.size(), 2) << "springs back";

    chart.drag(1, {250, 60});
    owner.said.clear();
    EXPECT_TRUE(chart.pressKey(1, Qt::Key_Delete, Qt::NoModifier)) << "one hand at a time";
    chart.setPercent(1, 30);
    chart.addPointAnywhere();
    EXPECT_TRUE(owner.said.isEmpty());
    chart.setIsEditable(false);
    EXPECT_EQ(owner.takeEdits(), QStringList{u"cancel"_s});
    chart.setIsEditable(true);
    // The point is taken away under the pointer.
    chart.drag(2, {300, 30});
    chart.setCurve(FanCurve({{20, 100}}));
    EXPECT_EQ(chart.draggedPoint(), -1);
}

TEST_F(CurveChart, TakesEditsFromTheKeyboard) {
    struct Row {
        int key;
        Qt::KeyboardModifiers modifiers;
        QString edit;
    };
    const Row rows[] = {
        {Qt::Key_Right, Qt::NoModifier, u"nudge 1: 61 50"_s},
        {Qt::Key_Left, Qt::ShiftModifier, u"nudge 1: 56 50"_s},
        {Qt::Key_Up, Qt::KeypadModifier, u"nudge 1: 56 51"_s},
        {Qt::Key_Down, Qt::ShiftModifier, u"nudge 1: 56 46"_s},
        {Qt::Key_N, Qt::NoModifier, u"add: 68 73"_s},
        {Qt::Key_Delete, Qt::NoModifier, u"delete 2"_s},
        {Qt::Key_Insert, Qt::NoModifier, u"add: 95 100"_s}, // after the last: half of the flat part
        {Qt::Key_Backspace, Qt::NoModifier, u"delete 3"_s},
    };
    chart.setCurrentPoint(1);
    for (const auto& [key, modifiers, edit] : rows) {
        EXPECT_TRUE(chart.pressKey(chart.currentPoint(), key, modifiers));
        EXPECT_EQ(owner.takeEdits(), QStringList{edit});
    }
    EXPECT_EQ(chart.currentPoint(), 2) << "the last point is the one before the deleted one";
    EXPECT_FALSE(chart.pressKey(1, Qt::Key_Z, Qt::ControlModifier));
    EXPECT_FALSE(chart.pressKey(1, Qt::Key_Right, Qt::ControlModifier));
    EXPECT_FALSE(chart.pressKey(1, Qt::Key_Tab, Qt::NoModifier));
    EXPECT_FALSE(chart.pressKey(1, Qt::Key_F10, Qt::NoModifier)) << "without Shift";
    EXPECT_FALSE(chart.pressKey(7, Qt::Key_Right, Qt::NoModifier));

    chart.setCurve(FanCurve({{40, 20}, {43, 20}, {110, 100}}));
    EXPECT_TRUE(chart.pressKey(0, Qt::Key_N, Qt::NoModifier));
    EXPECT_TRUE(chart.pressKey(2, Qt::Key_N, Qt::NoModifier));
    EXPECT_TRUE(owner.said.isEmpty()) << "there is no room";
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        chart.setCurve(FanCurve({{20, 0}, {110, 100}}));
        chart.pressKey(key == Qt::Key_Left || key == Qt::Key_Down ? 0 : 1, key, Qt::ShiftModifier);
    }
    EXPECT_EQ(owner.takeEdits(), (QStringList{u"nudge 0: 20 0"_s, u"nudge 1: 110 100"_s,
                                              u"nudge 1: 110 100"_s, u"nudge 0: 20 0"_s}))
        << "the axes end there";
}

TEST_F(CurveChart, ChoosesPointsByKeyAlsoWhereNothingCanBeEdited) {
    for (const bool isEditable : {true, false}) {
        chart.setIsEditable(isEditable);
        chart.setCurrentPoint(0);
        for (const auto& [key, current] :
             {std::pair(Qt::Key_PageUp, 0), std::pair(Qt::Key_PageDown, 1),
              std::pair(Qt::Key_End, 2), std::pair(Qt::Key_PageDown, 2),
              std::pair(Qt::Key_PageUp, 1), std::pair(Qt::Key_Home, 0)}) {
            EXPECT_TRUE(chart.pressKey(chart.currentPoint(), key, Qt::NoModifier));
            EXPECT_EQ(chart.currentPoint(), current);
        }
    }
    EXPECT_FALSE(chart.pressKey(0, Qt::Key_Right, Qt::NoModifier)) << "the page may scroll";
    EXPECT_FALSE(chart.pressKey(0, Qt::Key_Delete, Qt::NoModifier));
    EXPECT_TRUE(owner.said.isEmpty());
    chart.setHasKeyboardFocus(true);
    EXPECT_EQ(chart.callout().text, u"40 °C · 20%"_s);
}

TEST_F(CurveChart, KeepsTheKeyboardAtItsPointWhateverComesOrGoesBeforeIt) {
    chart.setCurrentPoint(1);
    chart.setCurve(FanCurve({{30, 10}, {40, 20}, {60, 50}, {80, 100}}));
    EXPECT_EQ(chart.currentPoint(), 2);
    chart.setCurve(FanCurve({{40, 20}, {60, 50}, {80, 100}}));
    EXPECT_EQ(chart.currentPoint(), 1);
    chart.setCurve(FanCurve({{40, 20}, {80, 100}}));
    EXPECT_EQ(chart.currentPoint(), 1) << "the one after it";
    EXPECT_TRUE(chart.click({25, 20}));
    EXPECT_EQ(chart.currentPoint(), 0) << "what was added";
    EXPECT_FALSE(chart.click({25, 20}));
}

TEST_F(CurveChart, TellsTheValuesOfThePointThatWasWorkedOnLast) {
    chart.setHasKeyboardFocus(true);
    EXPECT_EQ(chart.callout().text, u"40 °C · 20%"_s);
    chart.setHoverLocation(QPointF(200, 100));
    EXPECT_EQ(chart.callout().text, u"60 °C · 50%"_s);
    chart.pressKey(0, Qt::Key_Home, Qt::NoModifier);
    EXPECT_EQ(chart.callout().text, u"40 °C · 20%"_s) << "the pointer rests";
    chart.setHoverLocation(QPointF(201, 100));
    EXPECT_EQ(chart.callout().text, u"60 °C · 50%"_s);
    chart.setFanReading(SMCFanReading{.minRPM = 1000, .maxRPM = 3000});
    EXPECT_EQ(chart.callout().text, u"60 °C · 50% · about 2,000 rpm"_s);
    chart.setCurve(FanCurve({{40, 20}, {60, 51}, {80, 100}}));
    EXPECT_EQ(chart.callout().text, u"60 °C · 51% · about 2,020 rpm"_s);
    chart.setHoverLocation(QPointF(50, 40));
    EXPECT_TRUE(chart.ghost().isShown);
    chart.setIsEditable(false);
    EXPECT_FALSE(chart.ghost().isShown);
    chart.press(2);
    const CurveCallout last = chart.callout();
    EXPECT_FALSE(last.isShown);
    EXPECT_FALSE(last.text.isEmpty()) << "it fades with its text";
}

TEST_F(CurveChart, AddsPointsForThoseWhoCannotPoint) {
    chart.setLiveTemperature(70);
    chart.addPointAnywhere();
    chart.addPointAnywhere(); // no room: after the current one
    EXPECT_EQ(owner.takeEdits(), (QStringList{u"add: 70 75"_s, u"add: 75 88"_s}));
    chart.setCurve({});
    EXPECT_FALSE(chart.hasRoomAfter(0));
    chart.addPointAnywhere();
    EXPECT_EQ(owner.takeEdits(), QStringList{u"add: 70 0"_s});
    chart.setCurve(FanCurve({{60, 50}}));
    chart.setLiveTemperature(std::nullopt);
    chart.addPointAnywhere();
    EXPECT_EQ(owner.takeEdits(), QStringList{u"add: 20 0"_s});
    chart.setPercent(0, std::numeric_limits<double>::quiet_NaN());
    chart.setPercent(2, 50);
    chart.setIsEditable(false);
    chart.addPointAnywhere();
    chart.setPercent(0, 50);
    EXPECT_TRUE(owner.said.isEmpty());
}

TEST_F(CurveChart, KeepsWhatShowsAPointWithIt) {
    QSignalSpy inserted(chart.points(), &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(chart.points(), &QAbstractItemModel::rowsRemoved);
    const auto row = [&](int index) { return chart.points()->rows()[index]; };
    chart.setCurve(FanCurve({{40, 20}, {50, 90}, {60, 50}, {80, 100}}));
    ASSERT_EQ(inserted.size(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 1);
    EXPECT_EQ(row(2).spokenLabel, u"Point 3"_s);
    EXPECT_EQ(row(2).spokenValue, u"60 °C, 50 percent"_s);
    chart.setCurve(FanCurve({{40, 20}, {50, 90}, {80, 100}}));
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 2);
    EXPECT_EQ(row(2).x, 300);
    chart.setSize({900 + 64, 200 + 44});
    EXPECT_EQ(row(2).x, 600);
}

} // namespace
} // namespace kestrowind
