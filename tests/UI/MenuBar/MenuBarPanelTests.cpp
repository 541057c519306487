#include "Support/QtPrinters.h"
#include "UI/MenuBar/MenuBarPanel.h"
#include "UI/MenuBar/MenuBarPanelPlacement.h"
#include "UI/TestState.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(MenuBarPanelPlacementTest, StaysAtTheIconAndOnTheScreen) {
    constexpr QSize panel(300, 400);
    constexpr QRect screen(0, 24, 1280, 776);
    struct Row {
        const char* name;
        QRect icon;
        QRect available;
        QPoint corner;
    };
    const Row rows[] = {
        {"below a panel above", {700, 1, 22, 22}, screen, {561, 30}},
        {"at the right edge", {1256, 1, 22, 22}, screen, {974, 30}},
        {"at the left edge", {2, 1, 22, 22}, screen, {6, 30}},
        {"above a panel below", {700, 778, 22, 22}, {0, 0, 1280, 776}, {561, 370}},
        {"on a second screen", {1400, 1, 22, 22}, {1280, 24, 800, 576}, {1286, 30}},
        {"on too small a screen", {700, 1, 22, 22}, {0, 24, 1280, 300}, {561, 30}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(MenuBarPanelPlacement::topLeft(panel, row.icon, row.available), row.corner)
            << row.name;
}

class MenuBarPanelTest : public testing::Test {
protected:
    MenuBarPanelTest() { state.telemetry().ingest(sampleAt(0, 60, 50, {2000, 2100})); }

    void openAndWait() {
        panel.open(icon);
        ASSERT_TRUE(panel.isOpen());
        ASSERT_TRUE(QTest::qWaitForWindowActive(panel.view()));
    }

    [[nodiscard]] MenuBarModel& model() const {
        return *panel.view()->rootObject()->property("model").value<MenuBarModel*>();
    }
    [[nodiscard]] QQuickItem* focused() const { return panel.view()->activeFocusItem(); }

    TestState state;
    MenuBarPanel panel{*state.appState, nullptr, {.releaseDelay = 50ms, .sameClick = 10s}};
    QRect icon{300, 0, 22, 22};
};

TEST_F(MenuBarPanelTest, MakesItsSceneLazilyAndGivesItBack) {
    EXPECT_EQ(panel.view(), nullptr);
    openAndWait();
    EXPECT_EQ(focused(), panel.view()->rootObject());
    panel.close();
    EXPECT_FALSE(panel.isOpen());
    state.helper->setState(HelperState::notInstalled);
    EXPECT_TRUE(model().isHelperInstalled()) << "nobody looks at it";
    panel.open(icon);
    EXPECT_FALSE(model().isHelperInstalled());
    QTest::qWait(120);
    EXPECT_TRUE(panel.isOpen());
    panel.close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.view() == nullptr; }, 3000));
    panel.open(icon);
    EXPECT_TRUE(panel.isOpen());
}

TEST_F(MenuBarPanelTest, StaysAtTheIconAsHighAsItsContentAndNoHigherThanTheScreen) {
    icon.moveTop(700);
    openAndWait();
    const int height = panel.view()->height();
    const int bottom = panel.view()->geometry().bottom();
    state.telemetry().ingest(sampleAt(2, 60, 50, {2000}));
    const auto geometry = [this] { return panel.view()->geometry(); };
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return geometry().height() < height && geometry().bottom() == bottom; }, 3000));
    const int available = panel.view()->screen()->availableGeometry().height();
    state.telemetry().ingest(sampleAt(4, 60, 50, std::vector<double>(40, 2000)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.view()->height() == available - 12; }, 3000));
}

TEST_F(MenuBarPanelTest, ClosesOnTheIconOnEscapeAndWhenTheUserTurnsAway) {
    openAndWait();
    panel.toggle(icon);
    EXPECT_FALSE(panel.isOpen());
    panel.toggle(icon);
    EXPECT_TRUE(panel.isOpen());
    ASSERT_TRUE(QTest::qWaitForWindowActive(panel.view()));
    QTest::keyClick(panel.view(), Qt::Key_Escape);
    EXPECT_FALSE(panel.isOpen());

    openAndWait();
    QTest::mousePress(panel.view(), Qt::LeftButton, {}, QPoint(-20, 30));
    EXPECT_FALSE(panel.isOpen());
    QTest::mouseRelease(panel.view(), Qt::LeftButton, {}, QPoint(-20, 30));
    // The same click, as the tray tells of it.
    panel.toggle(icon);
    EXPECT_FALSE(panel.isOpen());
}

TEST_F(MenuBarPanelTest, IsCutToItsShapeWhereNothingShowsThrough) {
    openAndWait();
    EXPECT_EQ(panel.view()->color(), QColor(Qt::transparent));
    EXPECT_TRUE(panel.view()->mask().isEmpty());
    MenuBarPanel opaque(*state.appState, nullptr, {.isComposited = [] { return false; }});
    opaque.open(icon);
    EXPECT_EQ(opaque.view()->color().alpha(), 255);
    const QRegion shape = opaque.view()->mask();
    const QRect whole(QPoint(), opaque.view()->size());
    EXPECT_EQ(shape.boundingRect(), whole);
    for (const QPoint corner : {whole.topLeft(), whole.topRight(), whole.bottomRight()})
        EXPECT_FALSE(shape.contains(corner));
    for (const QPoint edge : {QPoint(4, 4), QPoint(12, 0), QPoint(0, 12), whole.center()})
        EXPECT_TRUE(shape.contains(edge)) << edge.x();
}

TEST_F(MenuBarPanelTest, ClosesWhenItLosesTheFocus) {
    openAndWait();
    QWindow other;
    other.show();
    other.requestActivate();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !panel.isOpen(); }, 3000));
}

TEST_F(MenuBarPanelTest, IsWorkedByTheKeyboard) {
    openAndWait();
    QSignalSpy quit(&panel, &MenuBarPanel::quitRequested);
    QTest::keyClick(panel.view(), Qt::Key_Tab);
    EXPECT_EQ(focused()->property("text"), u"Automatic"_s);
    QTest::keyClick(panel.view(), Qt::Key_Right);
    QTest::keyClick(panel.view(), Qt::Key_Space);
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::coolID);
    QTest::keyClick(panel.view(), Qt::Key_Right);
    QTest::keyClick(panel.view(), Qt::Key_Return);
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID);

    QTest::keyClick(panel.view(), Qt::Key_Tab);
    QTest::keyClick(panel.view(), Qt::Key_Right);
    EXPECT_EQ(state.engine().quickBoostPercent(), 5);
    std::optional<bool> wasOpen;
    state.appState->setOpenMainWindow([&] { wasOpen = panel.isOpen(); });
    QTest::keyClick(panel.view(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quit.size(), 1);
    QTest::keyClick(panel.view(), Qt::Key_Tab);
    QTest::keyClick(panel.view(), Qt::Key_Return);
    EXPECT_EQ(wasOpen, false) << "it closes first";
}

TEST_F(MenuBarPanelTest, OffersNothingWhileControlIsTaken) {
    state.setPhase(HelperControlPhase::unlocking);
    openAndWait();
    QTest::keyClick(panel.view(), Qt::Key_Tab);
    EXPECT_EQ(focused()->property("text"), u"Open Kestrowind"_s);
    state.setPhase(HelperControlPhase::controlling);
    QTest::keyClick(panel.view(), Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_NE(focused()->property("text"), u"Open Kestrowind"_s);
}

} // namespace
} // namespace kestrowind
