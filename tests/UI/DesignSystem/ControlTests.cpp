#include "UI/DesignSystem/Scene.h"

#include "UI/DesignSystem/Choice.h"
#include "UI/DesignSystem/Spinner.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class Shown : public Scene {
public:
    explicit Shown(const QByteArray& body)
        : Scene(body) {
        static_cast<void>(QTest::qWaitForWindowExposed(&window()));
        window().requestActivate();
        static_cast<void>(QTest::qWaitForWindowActive(&window()));
        item().forceActiveFocus(Qt::TabFocusReason);
    }
    void press(Qt::Key key) { QTest::keyClick(&window(), key); }
    void click(const QPoint& point) {
        QTest::mouseClick(&window(), Qt::LeftButton, Qt::NoModifier, point);
    }
};

TEST(ControlTests, ButtonsAreClickedBySpaceReturnAndPointerUnlessDisabled) {
    for (const QByteArray& body :
         {QByteArray("PushButton { text: 'Install' }"),
          QByteArray("IconButton { text: 'Install'; symbolName: 'plus' }")}) {
        Shown scene(body);
        QSignalSpy clicked(&scene.item(), SIGNAL(clicked()));
        scene.press(Qt::Key_Space);
        scene.press(Qt::Key_Return);
        scene.press(Qt::Key_Enter);
        scene.press(Qt::Key_Up);
        scene.click({10, 10});
        EXPECT_EQ(clicked.count(), 4) << body.toStdString();
        scene.item().setEnabled(false);
        scene.click({10, 10});
        EXPECT_EQ(clicked.count(), 4) << body.toStdString();
    }
}

TEST(ControlTests, WhatLiesUnderThePointerIsLit) {
    for (const char* body :
         {"Segment { index: 0; row: section; padding: 40; isCurrent: false }",
          "PushButton { text: 'New'; toolTip: 'No more than three'; enabled: false }"}) {
        Shown scene(QByteArray("Item { property choice section; Repeater { model: 1\n") + body +
                    "} }");
        const auto* const control = scene.item().childItems().value(0);
        ASSERT_NE(control, nullptr);
        for (const int x : {20, 30, 250}) {
            QTest::mouseMove(&scene.window(), {x, x < 250 ? 10 : 150});
            EXPECT_EQ(control->property("hovered"), x < 250) << body;
        }
    }
}

TEST(ControlTests, ASliderMovesByItsStepWithTheKeysAndSnapsWhileDragged) {
    Shown scene("Slider { label: 'Boost'; from: 0; to: 100; stepSize: 5; width: 218; setting: 40\n"
                "onChosen: value => setting = Math.min(value, 60) }");
    const auto value = [&] { return scene.item().property("value").toDouble(); };
    scene.press(Qt::Key_Right);
    EXPECT_EQ(value(), 45);
    scene.press(Qt::Key_Left);
    scene.press(Qt::Key_Left);
    EXPECT_EQ(value(), 35);

    // 18 points of knob in 218: 2 points a percent.
    QTest::mousePress(&scene.window(), Qt::LeftButton, Qt::NoModifier, {9 + 70, 11});
    for (int x = 79; x <= 9 + 2 * 72; x += 5)
        QTest::mouseMove(&scene.window(), {x, 11});
    EXPECT_EQ(value(), 60) << "what the owner made of it";
    QTest::mouseRelease(&scene.window(), Qt::LeftButton, Qt::NoModifier, {9 + 2 * 52, 11});
    EXPECT_EQ(value(), 50);
}

TEST(ControlTests, APopUpPickerIsWorkedByKeysAloneAndIsAsWideAsItsWidestText) {
    Shown scene("PopUpPicker { label: 'Source'; model: ['A', 'B', 'A much longer one']\n"
                "onActivated: index => currentIndex = index }");
    const auto current = [&] { return scene.item().property("currentIndex").toInt(); };
    auto* const menu = scene.item().property("menu").value<QObject*>();
    const double width = scene.item().implicitWidth();
    for (const Qt::Key opens : {Qt::Key_Down, Qt::Key_Return}) {
        const int before = current();
        scene.press(opens);
        ASSERT_TRUE(QTest::qWaitFor([&] { return menu->property("opened").toBool(); }));
        EXPECT_EQ(menu->property("currentIndex").toInt(), before);
        scene.press(Qt::Key_Down);
        EXPECT_EQ(current(), before) << "not chosen yet";
        scene.press(Qt::Key_Return);
        EXPECT_EQ(current(), before + 1);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !menu->property("visible").toBool(); }));
    }
    EXPECT_EQ(scene.item().implicitWidth(), width);
    EXPECT_GT(width, Shown("PopUpPicker { label: 'S'; model: ['A', 'B'] }").item().implicitWidth());
}

TEST(ControlTests, ASpinnerTurnsOnlyWhileSomebodySeesIt) {
    Shown scene("Spinner {}");
    const auto* spinner = qobject_cast<Spinner*>(&scene.item());
    ASSERT_NE(spinner, nullptr);
    const QImage before = scene.window().grabWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return scene.window().grabWindow() != before; }));
    EXPECT_TRUE(spinner->isTurning());
    scene.item().setVisible(false);
    EXPECT_FALSE(spinner->isTurning());
}

TEST(ControlTests, ASegmentedPickerAsksForTheNeighbourOrTheClickedSegmentOnly) {
    ChoiceList sections;
    sections.setRows({{u"1"_s, u"One"_s}, {u"2"_s, u"Two"_s, u"plus"_s}, {u"3"_s, u"Three"_s}});
    Shown scene("SegmentedPicker { currentIndex: 1; label: 'Section' }");
    scene.item().setProperty("model", QVariant::fromValue<QObject*>(&sections));
    static_cast<void>(scene.window().grabWindow()); // which puts the segments side by side
    QSignalSpy selected(&scene.item(), SIGNAL(selected(int)));
    scene.press(Qt::Key_Right);
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected.takeFirst()[0].toInt(), 2);
    EXPECT_EQ(scene.item().property("currentIndex").toInt(), 1) << "the owner decides";

    scene.item().setProperty("currentIndex", 2);
    scene.press(Qt::Key_Right);
    EXPECT_EQ(selected.count(), 0) << "there is nothing to the right";
    scene.click({12, 14});
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected.takeFirst()[0].toInt(), 0);
}

TEST(ControlTests, EveryDigitOfATabularTextIsEquallyWide) {
    Shown scene("TabularText { text: '1111'; font: Typography.gaugeNumber }");
    const double width = scene.item().implicitWidth();
    EXPECT_GT(width, 40);
    for (const QString& text : {QStringLiteral("2804"), QStringLiteral("7777")}) {
        scene.item().setProperty("text", text);
        static_cast<void>(scene.window().grabWindow());
        EXPECT_EQ(scene.item().implicitWidth(), width) << text.toStdString();
    }
}

} // namespace
} // namespace kestrowind
