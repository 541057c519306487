#include "Platform/Linux/RememberedActivationPolicy.h"
#include "Support/QtPrinters.h"
#include "UI/DesignSystem/SceneAppearance.h"
#include "UI/MainWindow/MainWindowFrame.h"
#include "UI/MainWindow/MainWindowScene.h"
#include "UI/MainWindow/SectionHost.h"
#include "UI/TestState.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Policy = ActivationPolicy::Policy;

TEST(MainWindowFrameTest, FitsTheContentBetweenTheLeastHeightAndTheScreen) {
    const QRectF screen(0, 25, 1440, 800);
    const QRectF frame(100, 60, 820, 600); // 480 of content under 120 of chrome
    struct Row {
        const char* what;
        double natural;
        QRectF frame;
        std::optional<QRectF> fitted;
    };
    for (const auto& [what, natural, from, fitted] : {
             Row{"nothing reported", 0, frame, std::nullopt},
             Row{"not a number", std::nan(""), frame, std::nullopt},
             Row{"higher", 560.5, frame, QRectF(100, 60, 820, 680.5)},
             Row{"never below the least", 300, frame, QRectF(100, 60, 820, 540)},
             Row{"as high as the screen allows", 5000, frame, QRectF(100, 49, 820, 776)},
             Row{"within a point", 480.9, frame, std::nullopt},
             Row{"a point more", 481, frame, QRectF(100, 60, 820, 601)},
             Row{"up from under the screen's end", 560, QRectF(100, 300, 820, 600),
                 QRectF(100, 145, 820, 680)},
         }) {
        EXPECT_EQ(MainWindowFrame::fittedFrame({.frame = from,
                                                .contentHeight = from.height() - 120,
                                                .naturalContentHeight = natural,
                                                .visibleScreen = screen}),
                  fitted)
            << what;
    }
    EXPECT_EQ(MainWindowFrame::fittedFrame({.frame = {0, 0, 820, 200},
                                            .contentHeight = 80,
                                            .naturalContentHeight = 300,
                                            .visibleScreen = {0, 0, 640, 480}}),
              QRectF(0, 0, 820, 456))
        << "the screen goes before the least height";
}

TEST(MainWindowFrameTest, WidensNarrowWindows) {
    const QRectF screen(0, 0, 1440, 900);
    EXPECT_EQ(MainWindowFrame::comfortableFrame({5, 5, 780, 700}, screen),
              QRectF(310, 100, 820, 700));
    EXPECT_EQ(MainWindowFrame::comfortableFrame({5, 5, 781, 700}, screen), std::nullopt);
}

class MainWindowTest : public testing::Test {
protected:
    MainWindowTest() { launch({}); }

    /// A new application with these arguments, without its window as yet.
    void launch(const QStringList& arguments) {
        scene.reset();
        state = std::make_unique<TestState>(arguments);
        state->defaults->registerDefault(u"hideDockIconWhenWindowClosed"_s, true);
        QFile highSection(state->home.path(u"High.qml"_s));
        EXPECT_TRUE(highSection.open(QIODevice::WriteOnly));
        highSection.write("import QtQuick\nItem { implicitHeight: 1200; "
                          "Item { objectName: 'low'; y: 1100; width: 10; height: 10 } }");
        scene = std::make_unique<MainWindowScene>(
            MainWindowServices{
                .appState = *state->appState,
                .userDefaults = *state->defaults,
                .activationPolicy = policy,
                .sectionViews = {{MainSection::dashboard,
                                  QUrl::fromLocalFile(highSection.fileName()),
                                  {}},
                                 {MainSection::settings, QUrl(u"qrc:/preview/Missing.qml"_s), {}}}},
            nullptr, 0ms);
    }

    bool isVisible() const { return scene->window() && scene->window()->isVisible(); }
    QQuickItem& view() const { return *scene->window()->rootObject(); }
    MainWindowModel& model() const { return *view().property("model").value<MainWindowModel*>(); }
    SectionHost& host() const { return *view().findChild<SectionHost*>(); }
    bool hasContent() const { return !host().childItems().isEmpty(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(scene->window(), key, modifiers);
    }

    std::unique_ptr<TestState> state;
    RememberedActivationPolicy policy;
    std::unique_ptr<MainWindowScene> scene;
};

TEST_F(MainWindowTest, ClosingHidesThenFreesEverythingAndItComesBackAsItWas) {
    EXPECT_EQ(scene->window(), nullptr);
    scene->show();
    EXPECT_TRUE(hasContent());
    EXPECT_FALSE(scene->window()->isPersistentSceneGraph());
    EXPECT_FALSE(scene->window()->isPersistentGraphics());
    model().setSection(MainSection::presets);
    // Let the height settle, so that what is chosen now is what stays.
    QTest::qWait(400);
    const QPointer<QQuickView> window = scene->window();
    window->setFramePosition({40, 50});
    window->resize(900, window->height());
    const QRect geometry = window->geometry();

    QSignalSpy released(scene.get(), &MainWindowScene::released);
    window->close();
    EXPECT_FALSE(hasContent());
    ASSERT_TRUE(released.wait(1000));
    EXPECT_EQ(window, nullptr);
    scene->show();
    EXPECT_EQ(scene->window()->geometry(), geometry);
    EXPECT_EQ(model().section(), MainSection::presets);

    scene->window()->showMaximized();
    scene->window()->close();
    ASSERT_TRUE(released.wait(1000));
    scene->show();
    EXPECT_TRUE(scene->window()->windowStates().testFlag(Qt::WindowMaximized));
}

TEST_F(MainWindowTest, MinimisingEmptiesTheWindowUntilItIsShown) {
    state->defaults->setBoolean(u"hideDockIconWhenWindowClosed"_s, false);
    scene->show();
    scene->window()->showMinimized();
    EXPECT_FALSE(hasContent());
    scene->show();
    EXPECT_FALSE(scene->window()->windowStates().testFlag(Qt::WindowMinimized));
    EXPECT_TRUE(hasContent());
    scene->window()->close();
    EXPECT_EQ(policy.policy(), Policy::regular);
}

TEST_F(MainWindowTest, FollowsTheNaturalHeightOfTheSection) {
    scene->show();
    QTest::qWait(400);
    // The dashboard asks for more than the screen has; the plain title for less than the least.
    model().setSection(MainSection::curves);
    QTRY_COMPARE_WITH_TIMEOUT(qRound(host().viewportHeight()), 420, 1500);
    EXPECT_EQ(scene->window()->width(), 820);
    EXPECT_EQ(scene->window()->minimumHeight(), view().height() - host().viewportHeight() + 420)
        << "the toolbar is what it became";
}

TEST_F(MainWindowTest, ScrollsToWhatHasTheKeyboard) {
    scene->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(scene->window()));
    const auto top = [this] { return host().mapToScene({}).y(); };
    const double atFirst = top();
    host().findChild<QQuickItem*>(u"low"_s)->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return top() < atFirst - 300; }));
    model().setSection(MainSection::settings);
    EXPECT_EQ(top(), atFirst) << "another section begins at its top";
    // It cannot be made.
    EXPECT_EQ(host().childItems().last()->property("section").value<Choice>().title, u"Settings"_s);
}

TEST_F(MainWindowTest, TakesItsCommandsFromTheKeyboard) {
    scene->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(scene->window()));
    press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(model().section(), MainSection::presets);
    press(Qt::Key_Tab);
    press(Qt::Key_Left);
    EXPECT_EQ(model().section(), MainSection::curves);
    press(Qt::Key_Tab);
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    EXPECT_EQ(state->presets().activePresetID(), FanPreset::coolID);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_EQ(state->presets().activePresetID(), FanPreset::fullSpeedID);

    QSignalSpy quit(scene.get(), &MainWindowScene::quitRequested);
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quit.size(), 1);
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(isVisible());
}

TEST(MainWindowHeightControllerTest, ResizesOnceForSeveralReports) {
    QWindow window;
    window.setGeometry(50, 60, 400, 550);
    MainWindowVisibility visibility;
    MainWindowHeightController controller(window, visibility, [&] { return window.height() - 50; });
    controller.fitWindow(450);
    controller.fitWindow(600);
    controller.fitWindow(460.2);
    QSignalSpy resized(&window, &QWindow::heightChanged);
    ASSERT_TRUE(resized.wait());
    EXPECT_LT(window.height(), 550) << "not for the second";
    EXPECT_GT(window.height(), 511) << "it moves";
    controller.finishResizing();
    EXPECT_EQ(window.geometry(), QRect(50, 60, 400, 511));

    visibility.setOnScreen(false);
    controller.fitWindow(700);
    controller.refitWindow();
    QTest::qWait(20);
    EXPECT_EQ(window.height(), 511);

    // A window that would reach below the screen goes up.
    visibility.setOnScreen(true);
    window.setGeometry(50, 250, 400, 511);
    controller.fitWindow(600);
    QTRY_COMPARE_WITH_TIMEOUT(window.height(), 650, 1500);
    EXPECT_EQ(window.geometry().bottom(), window.screen()->availableGeometry().bottom());
    window.setWindowStates(Qt::WindowMaximized);
    controller.fitWindow(450);
    QTest::qWait(20);
    EXPECT_EQ(window.height(), 650) << "a maximised window";
}

TEST_F(MainWindowTest, OpensAsTheOptionsSay) {
    for (const auto& [scheme, isDark, section, opened] :
         {std::tuple(u"dark"_s, true, u"Kurven"_s, MainSection::dashboard),
          {u"Dark"_s, false, u"cURVES"_s, MainSection::curves}}) {
        launch({u"-ForceColorScheme"_s, scheme, u"-InitialSection"_s, section});
        scene->show();
        EXPECT_EQ(SceneAppearance::of(*qmlEngine(&view())).isDark(), isDark);
        EXPECT_EQ(model().section(), opened);
    }

    launch({u"-CloseMainWindowAfterSeconds"_s, u"1e300"_s});
    scene->show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(isVisible());
    launch({u"-CloseMainWindowAfterSeconds"_s, u"0.05"_s});
    scene->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isVisible(); }));
}

} // namespace
} // namespace kestrowind
