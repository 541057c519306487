#include "UI/BothSchemes.h"
#include "UI/CurveEditor/CurveGestureArea.h"
#include "UI/CurveEditor/CurveShape.h"
#include "UI/CurveEditor/FanCurveChartModel.h"
#include "UI/RoomView.h"

#include <QCursor>
#include <QPointingDevice>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize chartSize(450 + 64, 200 + 44); ///< 5 points a degree, 2 a percent

/// A chart whose edits are made, as a screen would, and written down.
class CurveChart : public testing::Test {
protected:
    CurveChart() {
        chart.setIsEditable(true);
        chart.setCurve(asFound);
        chart.setSize(chartSize);
        using Chart = FanCurveChartModel;
        const auto on = [this](auto signal, auto slot) {
            QObject::connect(&chart, signal, &chart, slot);
        };
        on(&Chart::movePoint, [this](int index, const FanCurvePoint& to, bool isFinal) {
            if (!beforeDrag)
                beforeDrag = chart.curve();
            edit([&](FanCurve& curve) { curve.move(index, to); });
            if (!isFinal)
                return;
            tell(u"move %1:"_s.arg(index), to);
            beforeDrag.reset();
        });
        on(&Chart::nudgePoint, [this](int index, const FanCurvePoint& to) {
            tell(u"nudge %1:"_s.arg(index), to);
            edit([&](FanCurve& curve) { curve.move(index, to); });
        });
        on(&Chart::addPoint, [this](const FanCurvePoint& point) {
            tell(u"add:"_s, point);
            edit([&](FanCurve& curve) { curve.insert(point); });
        });
        on(&Chart::deletePointRequested, [this](int index) {
            edits.append(u"delete %1"_s.arg(index));
            edit([&](FanCurve& curve) { curve.remove(index); });
        });
        on(&Chart::dragCancelled, [this] {
            edits.append(u"cancel"_s);
            chart.setCurve(*std::exchange(beforeDrag, std::nullopt));
        });
    }

    /// What was asked for since the last time, but for the steps of a drag.
    QStringList takeEdits() { return std::exchange(edits, {}); }

    const FanCurve asFound{{{40, 20}, {60, 50}, {80, 100}}};
    FanCurveChartModel chart;

private:
    void tell(const QString& what, const FanCurvePoint& point) {
        edits.append(u"%1 %2 %3"_s.arg(what).arg(point.tempC).arg(point.percent));
    }
    void edit(const std::function<void(FanCurve&)>& change) {
        FanCurve curve = chart.curve();
        change(curve);
        chart.setCurve(curve);
    }

    QStringList edits;
    std::optional<FanCurve> beforeDrag;
};

TEST_F(CurveChart, ShowsTheTemperatureAndWhatTheCurveMakesOfIt) {
    EXPECT_FALSE(chart.live().isShown);
    QSignalSpy motion(&chart, &FanCurveChartModel::motionChanged);
    chart.setLiveTemperature(49);
    EXPECT_EQ(motion.size(), 0) << "it does not fly in";
    chart.setLiveTemperature(50);
    EXPECT_EQ(motion.size(), 2) << "but glides on";
    EXPECT_EQ(QPointF(chart.live().x, chart.live().operatingY), QPointF(150, 130));
    EXPECT_EQ(chart.live().labelX, 150);
    EXPECT_EQ(chart.live().operatingText, u"35%"_s);
    EXPECT_FALSE(chart.live().hasActual);
    for (const auto& [actualRPM, most, y] : {std::tuple(2400.0, 6000.0, 150.0),
                                             {7000.0, 6000.0, 0.0},
                                             {900.0, 6000.0, 200.0},
                                             {0.0, 6000.0, -1.0},
                                             {2400.0, 1200.0, -1.0},
                                             {2400.0, 1e9, -1.0}}) {
        chart.setFanReading(SMCFanReading{.actualRPM = actualRPM, .minRPM = 1200, .maxRPM = most});
        EXPECT_EQ(chart.live().hasActual, y >= 0) << actualRPM << " of " << most;
        EXPECT_TRUE(y < 0 || chart.live().actualY == y) << chart.live().actualY;
    }
    chart.setFanReading(SMCFanReading{.actualRPM = 2400, .minRPM = 1200, .maxRPM = 6000});
    EXPECT_EQ(chart.live().operatingText, u"35% · about 2,880 rpm"_s);
    for (const auto& [temperature, place, labelX, text] :
         {std::tuple(130, QPointF(450, 0), 426, u"130 °C"_s),
          {10, QPointF(0, 200), 24, u"10 °C"_s}}) {
        chart.setLiveTemperature(temperature);
        EXPECT_EQ(QPointF(chart.live().x, chart.live().operatingY), place);
        EXPECT_EQ(chart.live().labelX, labelX);
        EXPECT_EQ(chart.live().text, text);
    }
    chart.setLiveTemperature(65);
    chart.setSize(chartSize + QSize(450, 0));
    EXPECT_EQ(chart.live().x, 450) << "it stays at its temperature";
    chart.setLiveTemperature(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(chart.live().isShown);
}

TEST_F(CurveChart, TakesEditsFromTheKeyboard) {
    chart.setCurrentPoint(1);
    for (const auto& [key, modifiers, edit] : {
             std::tuple(Qt::Key_Right, Qt::NoModifier, "nudge 1: 61 50"),
             {Qt::Key_Left, Qt::ShiftModifier, "nudge 1: 56 50"},
             {Qt::Key_Up, Qt::KeypadModifier, "nudge 1: 56 51"},
             {Qt::Key_Down, Qt::ShiftModifier, "nudge 1: 56 46"},
             {Qt::Key_N, Qt::NoModifier, "add: 68 73"},
             {Qt::Key_Delete, Qt::NoModifier, "delete 2"},
             {Qt::Key_Insert, Qt::NoModifier, "add: 95 100"}, // half of the flat part at the end
             {Qt::Key_Backspace, Qt::NoModifier, "delete 3"},
         }) {
        EXPECT_TRUE(chart.pressKey(chart.currentPoint(), key, Qt::KeyboardModifiers(modifiers)));
        EXPECT_EQ(takeEdits(), QStringList{QString::fromLatin1(edit)});
    }
    EXPECT_EQ(chart.currentPoint(), 2) << "the last point is the one before the deleted one";
    EXPECT_FALSE(chart.pressKey(1, Qt::Key_Right, Qt::ControlModifier));
    EXPECT_FALSE(chart.pressKey(1, Qt::Key_Tab, Qt::NoModifier));
    EXPECT_FALSE(chart.pressKey(1, Qt::Key_F10, Qt::NoModifier)) << "without Shift";
    EXPECT_FALSE(chart.pressKey(7, Qt::Key_Right, Qt::NoModifier));

    chart.setCurve(FanCurve({{20, 0}, {23, 0}, {110, 100}}));
    EXPECT_TRUE(chart.pressKey(0, Qt::Key_N, Qt::NoModifier));
    EXPECT_TRUE(chart.pressKey(2, Qt::Key_N, Qt::NoModifier));
    EXPECT_TRUE(takeEdits().isEmpty()) << "there is no room";
    for (const auto& [point, key] :
         {std::pair(0, Qt::Key_Left), {0, Qt::Key_Down}, {2, Qt::Key_Right}, {2, Qt::Key_Up}})
        chart.pressKey(point, key, Qt::ShiftModifier);
    EXPECT_EQ(takeEdits(), (QStringList{u"nudge 0: 20 0"_s, u"nudge 0: 20 0"_s,
                                        u"nudge 2: 110 100"_s, u"nudge 2: 110 100"_s}))
        << "the axes end there";

    chart.setIsEditable(false);
    for (const auto& [key, current] : {std::pair(Qt::Key_PageUp, 1),
                                       {Qt::Key_Home, 0},
                                       {Qt::Key_PageUp, 0},
                                       {Qt::Key_PageDown, 1},
                                       {Qt::Key_End, 2},
                                       {Qt::Key_PageDown, 2}}) {
        EXPECT_TRUE(chart.pressKey(chart.currentPoint(), key, Qt::NoModifier));
        EXPECT_EQ(chart.currentPoint(), current);
    }
    EXPECT_FALSE(chart.pressKey(0, Qt::Key_Right, Qt::NoModifier)) << "the page may scroll";
    EXPECT_FALSE(chart.pressKey(0, Qt::Key_Delete, Qt::NoModifier));
    EXPECT_TRUE(takeEdits().isEmpty());
}

TEST_F(CurveChart, KeepsTheKeyboardAtItsPointWhateverComesOrGoesBeforeIt) {
    chart.setCurrentPoint(1);
    chart.setCurve(FanCurve({{30, 10}, {40, 20}, {60, 50}, {80, 100}}));
    EXPECT_EQ(chart.currentPoint(), 2);
    chart.setCurve(asFound);
    EXPECT_EQ(chart.currentPoint(), 1);
    chart.setCurve(FanCurve({{40, 20}, {80, 100}}));
    EXPECT_EQ(chart.currentPoint(), 1) << "the one after it";
}

TEST_F(CurveChart, TellsTheValuesOfThePointThatWasWorkedOnLast) {
    chart.setHasKeyboardFocus(true);
    EXPECT_EQ(chart.callout().text, u"40 °C · 20%"_s);
    chart.setHoverLocation(QPointF(200, 100));
    EXPECT_EQ(chart.callout().text, u"60 °C · 50%"_s);
    chart.pressKey(0, Qt::Key_Home, Qt::NoModifier);
    EXPECT_EQ(chart.callout().text, u"40 °C · 20%"_s) << "the pointer rests";
    chart.setHoverLocation(QPointF(201, 100));
    chart.setFanReading(SMCFanReading{.minRPM = 1000, .maxRPM = 3000});
    EXPECT_EQ(chart.callout().text, u"60 °C · 50% · about 2,000 rpm"_s);
    chart.setCurve(FanCurve({{40, 20}, {60, 51}, {80, 100}}));
    EXPECT_EQ(chart.callout().text, u"60 °C · 51% · about 2,020 rpm"_s);
    chart.setHoverLocation(QPointF(50, 40));
    EXPECT_TRUE(chart.ghost().isShown);
    chart.setIsEditable(false);
    EXPECT_FALSE(chart.ghost().isShown);
    chart.press(2);
    EXPECT_FALSE(chart.callout().isShown);
    EXPECT_FALSE(chart.callout().text.isEmpty()) << "it fades with its text";
}

TEST_F(CurveChart, AddsPointsForThoseWhoCannotPoint) {
    chart.setLiveTemperature(70);
    chart.addPointAnywhere();
    chart.addPointAnywhere(); // no room: after the current one
    EXPECT_EQ(takeEdits(), (QStringList{u"add: 70 75"_s, u"add: 75 88"_s}));
    chart.setLiveTemperature(std::nullopt);
    chart.setCurve({});
    EXPECT_FALSE(chart.hasRoomAfter(0));
    chart.addPointAnywhere();
    EXPECT_EQ(takeEdits(), QStringList{u"add: 20 0"_s});
    chart.setPercent(0, std::numeric_limits<double>::quiet_NaN());
    chart.setPercent(2, 50);
    chart.setIsEditable(false);
    chart.addPointAnywhere();
    chart.setPercent(0, 50);
    EXPECT_TRUE(takeEdits().isEmpty());
}

/// The chart in a window with real events.
class CurveGestures : public CurveChart {
protected:
    CurveGestures() { view.showActive(); }

    static QPoint at(double temperature, double percent) {
        return {46 + qRound((temperature - 20) * 5), 18 + qRound((100 - percent) * 2)};
    }
    void press(const QPoint& point, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(&view, button, Qt::NoModifier, point);
    }
    void move(const QPoint& point) { QTest::mouseMove(&view, point); }
    void release(const QPoint& point) {
        QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, point);
    }
    void click(const QPoint& point, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&view, button, Qt::NoModifier, point);
    }
    void doubleClick(const QPoint& point) {
        QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, point);
    }
    void drag(const QPoint& from, const QPoint& to) {
        press(from);
        move(to);
        release(to);
    }
    [[nodiscard]] QQuickItem* handle(int index) { return view.named(u"Point %1"_s.arg(index + 1)); }

    RoomView view{u"CurveEditor/FanCurveChart.qml"_s, chart, chartSize};
    CurveGestureArea* const area = view.rootObject()->findChild<CurveGestureArea*>();
    QSignalSpy menu{&chart, &FanCurveChartModel::contextMenuRequested};
};

TEST_F(CurveGestures, DragPointsAndLetThemGoWhereTheyAre) {
    const auto* shape = view.rootObject()->findChild<CurveShape*>();
    QSignalSpy motion(&chart, &FanCurveChartModel::motionChanged);
    move(at(60, 50));
    EXPECT_EQ(area->cursor().shape(), Qt::OpenHandCursor);
    press(at(60, 50));
    move(at(60, 50) + QPoint(1, 1));
    EXPECT_EQ(chart.draggedPoint(), -1) << "a hand that trembles does not drag";
    move(at(30, 80));
    EXPECT_EQ(area->cursor().shape(), Qt::ClosedHandCursor);
    EXPECT_EQ(chart.callout().text, u"41 °C · 80%"_s) << "held by its neighbour";
    EXPECT_FALSE(chart.ghost().isShown) << "nothing is added while dragging";
    move({1, 243}); // out of the plot
    EXPECT_EQ(chart.curve().points()[1], (FanCurvePoint{41, 0}));
    EXPECT_EQ(shape->outline()[3], QPointF(41, 0)) << "the line follows";
    click(at(65, 60), Qt::RightButton);
    EXPECT_EQ(menu.size(), 0) << "another button means nothing";
    move(at(65, 60));
    release(at(65, 60));
    EXPECT_EQ(takeEdits(), QStringList{u"move 1: 65 60"_s});
    EXPECT_EQ(chart.draggedPoint(), -1);
    EXPECT_EQ(motion.size(), 0) << "it is where the pointer is, at once";

    click(at(65, 60));
    EXPECT_TRUE(takeEdits().isEmpty()) << "a click on a point is no edit";
    EXPECT_EQ(chart.hoveredPoint(), 1);

    // A handle at the plot's edge reaches beyond it.
    const QPoint above = at(80, 100) - QPoint(0, 12);
    move(above);
    EXPECT_EQ(chart.hoveredPoint(), 2);
    drag(above, at(85, 90));
    EXPECT_EQ(takeEdits(), QStringList{u"move 2: 85 90"_s});
    move({5, 5});
    EXPECT_TRUE(chart.isIdle()) << "the pointer has left the plot";
    move(at(30, 80));
    EXPECT_EQ(area->cursor().shape(), Qt::CrossCursor);
    EXPECT_EQ(area->pointer(), at(30, 80));
    EXPECT_TRUE(area->isHovered());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    EXPECT_FALSE(area->isHovered());
    EXPECT_TRUE(chart.isIdle());
    EXPECT_EQ(area->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(CurveGestures, AddByAClickAndDeleteByADoubleClick) {
    click(at(30, 80));
    EXPECT_EQ(takeEdits(), QStringList{u"add: 30 80"_s});
    click(at(30, 80) + QPoint(9, 0)); // too close
    drag(at(95, 20), at(101, 20));    // no click
    click({10, 100});                 // outside of the plot
    EXPECT_TRUE(takeEdits().isEmpty());

    doubleClick(at(80, 100));
    EXPECT_EQ(takeEdits(), QStringList{u"delete 3"_s});
    EXPECT_EQ(view.activeFocusItem(), handle(2)) << "the keyboard stays in the chart";
    doubleClick(at(95, 20));
    EXPECT_EQ(takeEdits(), QStringList{u"add: 95 20"_s}) << "and does not delete it again";

    // The second press of two may begin a drag.
    click(at(40, 20));
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    drag(at(40, 20), at(50, 40));
    EXPECT_EQ(takeEdits(), QStringList{u"move 1: 50 40"_s});
}

TEST_F(CurveGestures, EndAsIfTheyHadNotBegun) {
    const auto startDragging = [&] {
        press(at(60, 50));
        move(at(70, 70));
        move(at(70, 71));
        EXPECT_EQ(chart.draggedPoint(), 1);
    };
    startDragging();
    EXPECT_TRUE(chart.pressKey(1, Qt::Key_Delete, Qt::NoModifier)) << "one hand at a time";
    chart.setPercent(1, 30);
    chart.addPointAnywhere();
    QSignalSpy motion(&chart, &FanCurveChartModel::motionChanged);
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(chart.curve(), asFound);
    EXPECT_EQ(motion.size(), 2) << "it springs back";
    move(at(75, 70));
    EXPECT_TRUE(chart.ghost().isShown) << "it follows the pointer again";
    move(at(80, 100));
    EXPECT_EQ(chart.hoveredPoint(), 2);
    release(at(80, 100));
    EXPECT_EQ(takeEdits(), QStringList{u"cancel"_s}) << "the rest of the movement means nothing";

    const std::function<void()> ends[] = {
        [&] { area->ungrabMouse(); },
        [&] { chart.setIsEditable(false); },
        [&] { view.rootObject()->setVisible(false); },
        [&] { view.hide(); },
    };
    for (const auto& end : ends) {
        startDragging();
        end();
        EXPECT_EQ(takeEdits(), QStringList{u"cancel"_s});
        EXPECT_EQ(chart.curve(), asFound);
        chart.setIsEditable(true);
        view.rootObject()->setVisible(true);
        release(at(70, 71));
    }
    // The point is taken away under the pointer.
    chart.drag(2, {300, 30});
    chart.setCurve(FanCurve({{20, 100}}));
    EXPECT_EQ(chart.draggedPoint(), -1);
}

TEST_F(CurveGestures, WorkByTouch) {
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    const auto touch = [&] { return QTest::touchEvent(&view, screen.get()); };
    touch().press(0, at(60, 50) + QPoint(15, 12));
    touch().move(0, at(66, 60));
    touch().move(0, at(70, 70));
    EXPECT_TRUE(QTest::qWaitFor([&] { return chart.draggedPoint() == 1; }, 3000));
    touch().release(0, at(70, 70));
    EXPECT_EQ(takeEdits(), QStringList{u"move 1: 70 70"_s});
    EXPECT_FALSE(chart.ghost().isShown) << "a finger does not hover";

    touch().press(0, at(70, 70));
    touch().move(0, at(70, 70) + QPoint(6, 0));
    touch().release(0, at(70, 70) + QPoint(6, 0));
    EXPECT_TRUE(takeEdits().isEmpty()) << "it is not as steady as a mouse";

    touch().press(0, at(70, 70));
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu.size() == 1; }, 3000)) << "a finger that rests";
    touch().release(0, at(70, 70));
    EXPECT_TRUE(takeEdits().isEmpty());
}

TEST_F(CurveGestures, OpenAMenuForThePointUnderThePointerOnly) {
    click(at(95, 20), Qt::RightButton);
    EXPECT_EQ(menu.size(), 0);
    click(at(60, 50), Qt::RightButton);
    ASSERT_EQ(menu.size(), 1);
    EXPECT_EQ(menu[0][0].toInt(), 1);
    view.click(u"Delete Point"_s);
    EXPECT_EQ(takeEdits(), QStringList{u"delete 1"_s});
    ASSERT_TRUE(view.isGone(u"Delete Point"_s));
    EXPECT_EQ(view.activeFocusItem(), handle(1));
    EXPECT_FALSE(chart.hasKeyboardFocus()) << "no ring: the pointer did it";

    QTest::keyClick(&view, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(view.awaited(u"Delete Point"_s), nullptr);
    EXPECT_EQ(view.focused(), u"Add Point"_s);
    QTest::keyClick(&view, Qt::Key_Escape);
    ASSERT_TRUE(view.isGone(u"Delete Point"_s));
    EXPECT_EQ(view.activeFocusItem(), handle(1));
    EXPECT_TRUE(chart.hasKeyboardFocus());
}

TEST_F(CurveGestures, AreDeafOnAReadOnlyCurve) {
    chart.setIsEditable(false);
    for (const QPoint& point : {at(30, 80), at(60, 50)}) {
        move(point);
        EXPECT_FALSE(chart.ghost().isShown || chart.callout().isShown);
        doubleClick(point);
        click(point, Qt::RightButton);
        drag(point, at(70, 70));
    }
    EXPECT_TRUE(takeEdits().isEmpty());
    EXPECT_EQ(menu.size(), 0);
}

TEST_F(CurveGestures, TheKeyboardComesToTheFirstPointAndStaysWithItsPoint) {
    QTest::keyClick(&view, Qt::Key_Tab);
    ASSERT_EQ(view.activeFocusItem(), handle(0));
    EXPECT_TRUE(chart.callout().isShown);
    QTest::keyClick(&view, Qt::Key_PageDown);
    EXPECT_EQ(view.activeFocusItem(), handle(1));
    QTest::keyClick(&view, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(takeEdits(), QStringList{u"nudge 1: 60 55"_s});
    EXPECT_EQ(view.activeFocusItem(), handle(1));
    QTest::keyClick(&view, Qt::Key_N);
    EXPECT_EQ(view.activeFocusItem(), handle(2)) << "the new point";
    for (const int next : {2, 1, 0}) {
        QTest::keyClick(&view, Qt::Key_Delete);
        EXPECT_EQ(view.activeFocusItem(), handle(next));
    }
    // A click takes the keyboard along, without a ring until a key is pressed.
    click(at(40, 20));
    EXPECT_FALSE(chart.hasKeyboardFocus());
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_TRUE(chart.hasKeyboardFocus());
}

TEST_F(CurveGestures, AreActionsOnANumberToAssistiveTechnology) {
    QAccessibleInterface* point = QAccessible::queryAccessibleInterface(handle(1));
    EXPECT_EQ(point->role(), QAccessible::Slider);
    EXPECT_EQ(point->text(QAccessible::Description), u"60 °C, 50 percent"_s);
    QAccessibleValueInterface* number = point->valueInterface();
    ASSERT_NE(number, nullptr);
    EXPECT_EQ(number->currentValue(), 50);
    EXPECT_EQ(number->minimumValue(), 0);
    EXPECT_EQ(number->maximumValue(), 100);
    EXPECT_EQ(number->minimumStepSize(), 1);
    point->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    point->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    number->setCurrentValue(70.4);
    number->setCurrentValue(-5);
    EXPECT_EQ(takeEdits(), (QStringList{u"nudge 1: 60 51"_s, u"nudge 1: 60 50"_s,
                                        u"nudge 1: 60 70"_s, u"nudge 1: 60 0"_s}));
    EXPECT_EQ(chart.currentPoint(), 1);

    point->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    view.click(u"1 °C Warmer"_s);
    EXPECT_EQ(takeEdits(), QStringList{u"nudge 1: 61 0"_s});
}

TEST_F(CurveGestures, TheLineSpringsToAnEdit) {
    const auto* shape = view.rootObject()->findChild<CurveShape*>();
    const QPolygonF before = shape->outline();
    chart.setCurve(FanCurve({{40, 20}, {60, 50}, {70, 60}, {80, 100}}));
    EXPECT_EQ(shape->outline(), before) << "it sets out from where it was";
    EXPECT_TRUE(QTest::qWaitFor([&] { return shape->outline().size() == 7; }, 3000));
}

TEST(CurveChartPictures, ShowTheAxesTheCurveAndWhatIsPointedAt) {
    for (const bool isEditable : {true, false}) {
        FanCurveChartModel chart;
        // Stored points outside of the axes stand at the plot's edge, and the area ends there.
        chart.setCurve(FanCurve::fromStoredPoints(
            {{10, 20}, {40, 10}, {60, 50}, {75, 130}, {90, 130}, {100, 70}}));
        chart.setIsEditable(isEditable);
        chart.setLiveTemperature(66);
        RoomView view(u"CurveEditor/FanCurveChart.qml"_s, chart,
                      isEditable ? chartSize : QSize(270 + 64, 120 + 44));
        view.showActive();
        view.press(Qt::Key_Tab);
        chart.setFanReading(SMCFanReading{.actualRPM = 3600, .minRPM = 1200, .maxRPM = 6000});
        chart.setBoostPercent(isEditable ? 40 : 0);
        chart.setHoverLocation(QPointF(150, 60));
        const auto items = view.rootObject()->findChildren<QQuickItem*>();
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return std::ranges::any_of(items, [](const QQuickItem* item) {
                return item->property("callout").isValid() && item->opacity() == 1;
            });
        }));
        EXPECT_TRUE(looksLike(isEditable ? u"CurveEditor/editable"_s : u"CurveEditor/narrow"_s,
                              inBothSchemes(view, *view.engine())));
    }
}

} // namespace
} // namespace kestrowind
