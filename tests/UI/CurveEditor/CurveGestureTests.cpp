#include "UI/CurveEditor/CurveGestureArea.h"
#include "UI/CurveEditor/CurveOwner.h"
#include "UI/CurveEditor/CurveShape.h"
#include "UI/RoomView.h"

#include <QCursor>
#include <QPointingDevice>
#include <QSignalSpy>

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// The chart in a window with real events; 5 points a degree, 2 a percent.
class CurveGestures : public testing::Test {
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
    void click(const QPoint& point) {
        press(point);
        release(point);
    }
    [[nodiscard]] QQuickItem* handle(int index) { return view.named(u"Point %1"_s.arg(index + 1)); }

    CurveOwner owner{FanCurve({{40, 20}, {60, 50}, {80, 100}})};
    FanCurveChartModel& chart = owner.chart;
    RoomView view{u"CurveEditor/FanCurveChart.qml"_s, chart, {450 + 64, 200 + 44}};
};

TEST_F(CurveGestures, DragPointsAndLetThemGoWhereTheyAre) {
    press(at(60, 50));
    move(at(60, 50) + QPoint(1, 1));
    EXPECT_TRUE(owner.said.isEmpty()) << "a hand that trembles does not drag";
    move(at(70, 70));
    EXPECT_EQ(chart.draggedPoint(), 1);
    move({1, 243}); // out of the plot
    EXPECT_EQ(chart.curve().points()[1], (FanCurvePoint{41, 0})) << "up to its neighbour";
    move(at(65, 60));
    release(at(65, 60));
    EXPECT_EQ(owner.takeEdits(), QStringList{u"move 1: 65 60"_s});
    EXPECT_EQ(chart.draggedPoint(), -1);

    click(at(65, 60));
    EXPECT_TRUE(owner.takeEdits().isEmpty()) << "a click on a point is no edit";
    EXPECT_EQ(chart.hoveredPoint(), 1);

    // A handle at the plot's edge reaches beyond it.
    const QPoint above = at(80, 100) - QPoint(0, 12);
    move(above);
    EXPECT_EQ(chart.hoveredPoint(), 2);
    press(above);
    move(at(85, 90));
    release(at(85, 90));
    EXPECT_EQ(owner.takeEdits(), QStringList{u"move 2: 85 90"_s});
    move({5, 5});
    EXPECT_TRUE(QTest::qWaitFor([&] { return chart.isIdle(); })) << "the pointer has left";
}

TEST_F(CurveGestures, AreAnnouncedByThePointersShapeWhileItIsThere) {
    auto* area = view.rootObject()->findChild<CurveGestureArea*>();
    ASSERT_NE(area, nullptr);
    const auto shape = [&] { return area->cursor().shape(); };
    move(at(30, 80));
    EXPECT_EQ(shape(), Qt::CrossCursor);
    EXPECT_EQ(area->pointer(), at(30, 80));
    move(at(60, 50));
    EXPECT_EQ(shape(), Qt::OpenHandCursor);
    press(at(60, 50));
    move(at(65, 50));
    EXPECT_EQ(shape(), Qt::ClosedHandCursor);
    release(at(65, 50));
    EXPECT_TRUE(area->isHovered());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    EXPECT_FALSE(area->isHovered());
    EXPECT_TRUE(chart.isIdle());
    EXPECT_EQ(shape(), Qt::ArrowCursor);
}

TEST_F(CurveGestures, AddByAClickAndDeleteByADoubleClick) {
    click(at(30, 80));
    EXPECT_EQ(owner.takeEdits(), QStringList{u"add: 30 80"_s});
    click(at(30, 80) + QPoint(9, 0));
    EXPECT_TRUE(owner.takeEdits().isEmpty()) << "too close";
    press(at(95, 20));
    move(at(95, 20) + QPoint(30, 0));
    release(at(95, 20) + QPoint(30, 0));
    EXPECT_TRUE(owner.takeEdits().isEmpty()) << "a movement is no click";
    click({10, 100});
    EXPECT_TRUE(owner.takeEdits().isEmpty()) << "outside of the plot";

    QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, at(60, 50));
    EXPECT_EQ(owner.takeEdits(), QStringList{u"delete 2"_s});
    QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, at(95, 20));
    EXPECT_EQ(owner.takeEdits(), QStringList{u"add: 95 20"_s}) << "and does not delete it again";
    EXPECT_EQ(chart.draggedPoint(), -1);

    // The second press of two may begin a drag.
    click(at(40, 20));
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    press(at(40, 20));
    move(at(50, 40));
    release(at(50, 40));
    EXPECT_EQ(owner.takeEdits(), QStringList{u"move 1: 50 40"_s});
}

TEST_F(CurveGestures, EndAsIfTheyHadNotBegun) {
    const FanCurve before = chart.curve();
    const auto drag = [&] {
        press(at(60, 50));
        move(at(70, 70));
        move(at(70, 71));
        EXPECT_EQ(chart.draggedPoint(), 1);
        owner.said.clear();
    };
    drag();
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(chart.curve(), before);
    move(at(75, 70));
    EXPECT_TRUE(chart.ghost().isShown) << "it follows the pointer again";
    move(at(80, 100));
    EXPECT_EQ(chart.hoveredPoint(), 2);
    release(at(80, 100));
    EXPECT_EQ(owner.said, QStringList{u"cancel"_s}) << "the rest of the movement means nothing";

    drag();
    auto* area = view.rootObject()->findChild<CurveGestureArea*>();
    ASSERT_NE(area, nullptr);
    area->ungrabMouse();
    EXPECT_EQ(owner.said, QStringList{u"cancel"_s}) << "taken by another";
    release(at(70, 71));

    drag();
    view.rootObject()->setVisible(false);
    EXPECT_EQ(owner.said, QStringList{u"cancel"_s});
    view.rootObject()->setVisible(true);
    release(at(70, 71));

    drag();
    view.hide();
    EXPECT_EQ(owner.said, QStringList{u"cancel"_s});
    EXPECT_EQ(chart.curve(), before);
}

TEST_F(CurveGestures, WorkByTouch) {
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    QTest::touchEvent(&view, screen.get()).press(0, at(60, 50) + QPoint(15, 12));
    QTest::touchEvent(&view, screen.get()).move(0, at(66, 60));
    QTest::touchEvent(&view, screen.get()).move(0, at(70, 70));
    EXPECT_TRUE(QTest::qWaitFor([&] { return chart.draggedPoint() == 1; }, 3000));
    QTest::touchEvent(&view, screen.get()).release(0, at(70, 70));
    EXPECT_EQ(owner.takeEdits(), QStringList{u"move 1: 70 70"_s});
    EXPECT_FALSE(chart.ghost().isShown) << "a finger does not hover";

    QTest::touchEvent(&view, screen.get()).press(0, at(70, 70));
    QTest::touchEvent(&view, screen.get()).move(0, at(70, 70) + QPoint(6, 0));
    QTest::touchEvent(&view, screen.get()).release(0, at(70, 70) + QPoint(6, 0));
    EXPECT_TRUE(owner.takeEdits().isEmpty()) << "it is not as steady as a mouse";

    QSignalSpy menu(&chart, &FanCurveChartModel::contextMenuRequested);
    QTest::touchEvent(&view, screen.get()).press(0, at(70, 70));
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu.size() == 1; }, 3000)) << "a finger that rests";
    QTest::touchEvent(&view, screen.get()).release(0, at(70, 70));
    EXPECT_TRUE(owner.takeEdits().isEmpty());
}

TEST_F(CurveGestures, OpenAMenuForThePointUnderThePointerOnly) {
    QSignalSpy menu(&chart, &FanCurveChartModel::contextMenuRequested);
    QTest::mouseClick(&view, Qt::RightButton, Qt::NoModifier, at(95, 20));
    EXPECT_EQ(menu.size(), 0);
    QTest::mouseClick(&view, Qt::RightButton, Qt::NoModifier, at(60, 50));
    ASSERT_EQ(menu.size(), 1);
    EXPECT_EQ(menu[0][0].toInt(), 1);
    view.click(u"Delete Point"_s);
    EXPECT_EQ(owner.takeEdits(), QStringList{u"delete 1"_s});
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
    QSignalSpy menu(&chart, &FanCurveChartModel::contextMenuRequested);
    for (const QPoint& point : {at(30, 80), at(60, 50)}) {
        move(point);
        EXPECT_FALSE(chart.ghost().isShown);
        EXPECT_FALSE(chart.callout().isShown);
    }
    click(at(30, 80));
    QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, at(60, 50));
    QTest::mouseClick(&view, Qt::RightButton, Qt::NoModifier, at(60, 50));
    press(at(60, 50));
    move(at(70, 70));
    release(at(70, 70));
    EXPECT_TRUE(owner.said.isEmpty());
    EXPECT_EQ(menu.size(), 0);
}

TEST_F(CurveGestures, TheKeyboardComesToTheFirstPointAndStaysWithItsPoint) {
    QTest::keyClick(&view, Qt::Key_Tab);
    ASSERT_EQ(view.activeFocusItem(), handle(0));
    EXPECT_TRUE(chart.hasKeyboardFocus());
    EXPECT_TRUE(chart.callout().isShown);
    QTest::keyClick(&view, Qt::Key_PageDown);
    EXPECT_EQ(view.activeFocusItem(), handle(1));
    QTest::keyClick(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(owner.takeEdits(), (QStringList{u"nudge 1: 61 50"_s, u"nudge 1: 61 55"_s}));
    EXPECT_EQ(view.activeFocusItem(), handle(1));

    QTest::keyClick(&view, Qt::Key_N);
    EXPECT_EQ(chart.currentPoint(), 2);
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
    EXPECT_EQ(owner.takeEdits(), (QStringList{u"nudge 1: 60 51"_s, u"nudge 1: 60 50"_s,
                                              u"nudge 1: 60 70"_s, u"nudge 1: 60 0"_s}));
    EXPECT_EQ(chart.currentPoint(), 1);

    point->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    view.click(u"1 °C Warmer"_s);
    EXPECT_EQ(owner.takeEdits(), QStringList{u"nudge 1: 61 0"_s});
}

TEST_F(CurveGestures, KeepKeyboardAndPointerOnOnePoint) {
    click(at(80, 100));
    EXPECT_EQ(chart.currentPoint(), 2) << "the one that was pressed";
    QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, at(80, 100));
    EXPECT_EQ(owner.takeEdits(), QStringList{u"delete 2"_s});
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return view.activeFocusItem() == handle(chart.currentPoint()); }, 2000))
        << "the keyboard stays in the chart";

    // Another button in the middle of a drag means nothing.
    press(at(60, 50));
    move(at(65, 60));
    press(at(65, 60), Qt::RightButton);
    QTest::mouseRelease(&view, Qt::RightButton, Qt::NoModifier, at(65, 60));
    EXPECT_FALSE(view.rootObject()->property("isMenuOpen").toBool());
    EXPECT_EQ(chart.draggedPoint(), 1);
    EXPECT_TRUE(owner.takeEdits().isEmpty());
    release(at(66, 61));
    EXPECT_EQ(owner.takeEdits(), QStringList{u"move 1: 66 61"_s});
}

TEST_F(CurveGestures, TheLineSpringsToAnEditAndFollowsADrag) {
    auto* shape = view.rootObject()->findChild<CurveShape*>();
    ASSERT_NE(shape, nullptr);
    const QPolygonF before = shape->outline();
    chart.setCurve(FanCurve({{40, 20}, {60, 50}, {70, 60}, {80, 100}}));
    EXPECT_EQ(shape->outline(), before) << "it sets out from where it was";
    EXPECT_TRUE(QTest::qWaitFor([&] { return shape->outline().size() == 7; }, 3000));
    press(at(60, 50));
    move(at(50, 70));
    EXPECT_EQ(shape->outline()[3], QPointF(50, 70));
    release(at(50, 70));
    EXPECT_EQ(shape->outline()[3], QPointF(50, 70));
}

} // namespace
} // namespace kestrowind
