#include "KestrowindApp/KestrowindApp.h"

#include "Core/LocalizedText.h"
#include "Platform/Linux/RememberedActivationPolicy.h"
#include "Platform/Linux/RememberedActivity.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/FakeHelperConnection.h"
#include "Support/FakeLoginItem.h"
#include "Support/FakeStatusItem.h"
#include "Support/FakeSystemInformation.h"
#include "Support/QtPrinters.h"
#include "Support/ScreenReader.h"
#include "Support/TestDefaults.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTemporaryFile>
#include <gmock/gmock.h>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using QAccessible::Button;
using QAccessible::CheckBox;
using QAccessible::MenuItem;
using QAccessible::PageTab;
using QAccessible::PopupMenu;
using QAccessible::RadioButton;
using Action = QAccessibleActionInterface;
using testing::ElementsAre;

class FakeNotifications final : public Notifications {
public:
    void show(const Notification& /*notification*/) override {}
    void withdraw(const QString& /*identifier*/) override {}
};

class FakeAppearance final : public SystemAppearance {
public:
    ColorScheme scheme = ColorScheme::dark;

    [[nodiscard]] std::optional<ColorScheme> colorScheme() const override { return scheme; }
    [[nodiscard]] std::optional<AccentColor> accentColor() const override { return {}; }
};

/// Ends nothing, and keeps who wants the end.
class FakeApplication final : public ApplicationObject {
public:
    ApplicationDelegate* delegate = nullptr;
    bool isLoginItem = false;
    int terminations = 0;
    bool hasEnded = false;

    void setDelegate(ApplicationDelegate& newDelegate) override { delegate = &newDelegate; }
    void whenLaunched(const std::function<void(bool isLoginItem)>& launched) override {
        launched(isLoginItem);
    }
    void terminate() override {
        ++terminations;
        hasEnded = delegate && delegate->applicationShouldTerminate() ==
                                   ApplicationDelegate::TerminateReply::now;
    }
    void replyToShouldTerminate() override { hasEnded = true; }
};

class NoCopies final : public RunningApplications {
public:
    std::vector<std::unique_ptr<RunningApplication>>
    olderCopies(const QString& /*bundleIdentifier*/) override {
        return {};
    }
};

/// The whole application on a machine with one fan and the helper installed, of which nothing is
/// real. It keeps hold of what it gave away.
class KestrowindAppTest : public testing::Test {
protected:
    KestrowindAppTest() {
        smc->setFloat("Tp01", 60);
        smc->setByte("FNum", 1);
        for (const auto& [key, speed] : {std::pair("F0Ac", 2000.F), std::pair("F0Tg", 2100.F),
                                         std::pair("F0Mn", 1200.F), std::pair("F0Mx", 6000.F)})
            smc->setFloat(key, speed);
    }

    /// Makes a fake that it gives away, and keeps hold of it.
    template <class Fake>
    static auto kept(Fake*& fake) {
        return [&fake] {
            auto made = std::make_unique<Fake>();
            fake = made.get();
            return made;
        };
    }
    void make(const QStringList& arguments = {}, const LaunchOptions& options = {},
              bool hasTray = true) {
        Platform platform;
        platform.application = kept(application)();
        platform.information = kept(information)();
        platform.activity = kept(activity)();
        platform.userDefaults = home.defaults(arguments);
        platform.runningApplications = std::make_unique<NoCopies>();
        platform.activationPolicy = kept(policy)();
        platform.loginItem = kept(loginItem)();
        platform.scriptRunner = std::make_unique<ProcessScriptRunner>(QString());
        platform.helperConnection = helper.factory();
        platform.smc = [this] { return smc; };
        platform.systemAppearance = kept(appearance);
        platform.notifications = kept(notifications);
        platform.returnFreedMemory = [this] { ++timesMemoryWasReturned; };
        if (hasHelper)
            information->files = {QString::fromLatin1(HelperConstants::daemonPlistPath),
                                  QString::fromLatin1(HelperConstants::helperInstallPath)};
        information->supportFolder = home.path();
        defaults = platform.userDefaults.get();
        const auto makeItem = [this, hasTray] {
            auto made = kept(item)();
            made->hasPlace = hasTray;
            return made;
        };
        app = std::make_unique<KestrowindApp>(std::move(platform), options,
                                              ScenesSetup{.statusItem = makeItem,
                                                          .trayWait = 20ms,
                                                          .windowRelease = 0ms,
                                                          .panel = {.releaseDelay = 0ms}});
    }
    void start(const QStringList& arguments = {}) {
        make(arguments);
        app->start();
    }

    /// Null while none of this title is visible.
    static QWindow* window(const char* titleKey) {
        for (QWindow* candidate : QGuiApplication::topLevelWindows()) {
            if (candidate->isVisible() && candidate->title() == localized(titleKey))
                return candidate;
        }
        return nullptr;
    }
    static QQuickWindow* mainWindow() {
        return qobject_cast<QQuickWindow*>(window("app.window.mainTitle"));
    }
    QQuickWindow* panel() const {
        if (!window("menuBar.panel.title"))
            Q_EMIT item->clicked();
        return qobject_cast<QQuickWindow*>(window("menuBar.panel.title"));
    }
    void press(const char* buttonKey) {
        reader.look(*panel());
        reader.act(localized(buttonKey), Button);
    }

    bool hasHelper = true;
    TestHome home;
    std::shared_ptr<SimulatedSMC> smc = std::make_shared<SimulatedSMC>();
    FakeHelper helper;
    // The application has them.
    FakeApplication* application = nullptr;
    FakeSystemInformation* information = nullptr;
    RememberedActivity* activity = nullptr;
    RememberedActivationPolicy* policy = nullptr;
    FakeLoginItem* loginItem = nullptr;
    FakeAppearance* appearance = nullptr;
    FakeNotifications* notifications = nullptr;
    FakeStatusItem* item = nullptr;
    UserDefaults* defaults = nullptr;
    int timesMemoryWasReturned = 0;
    ScreenReader reader;
    std::unique_ptr<KestrowindApp> app;
};

TEST_F(KestrowindAppTest, ShowsASampleOnceTheEngineHasSeenIt) {
    start({u"-ActivatePreset"_s, u"Full Speed"_s});
    EXPECT_THAT(item->toolTips, ElementsAre(u"--°C\n-- rpm"_s));
    bool hasEngineActed = false;
    item->pictured = [&] { hasEngineActed = helper.methods().contains(u"setTargets"_s); };
    ASSERT_TRUE(QTest::qWaitFor([this] { return item->toolTips.size() == 2; }));
    EXPECT_EQ(item->toolTips.last(), u"60°C\n2000 rpm"_s);
    EXPECT_TRUE(hasEngineActed);
}

TEST_F(KestrowindAppTest, EveryWayToTheWindowOpensIt) {
    QGuiApplication::setQuitOnLastWindowClosed(true);
    start();
    EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
    EXPECT_EQ(QQuickWindow::textRenderType(), QQuickWindow::NativeTextRendering);
    for (const char* key : {"notifiesHelperFailure", "notifiesStandingFan", "notifiesOverheating"})
        EXPECT_TRUE(defaults->boolean(QString::fromLatin1(key))) << key;
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"the start", [] {}},
        {"a notification", [this] { Q_EMIT notifications->activated(); }},
        {"a balloon",
         [this] {
             Q_EMIT notifications->notShown({.identifier = u"heat"_s, .title = u"Hot"_s});
             EXPECT_THAT(item->messages, ElementsAre(u"Hot"_s));
             Q_EMIT item->messageClicked();
         }},
        {"the item's menu", [this] { item->choose(localized("menuBar.openApplicationButton")); }},
        {"the panel", [this] { press("menuBar.openApplicationButton"); }},
        {"the Dock",
         [this] { EXPECT_TRUE(application->delegate->applicationShouldHandleReopen(false)); }},
    };
    for (const auto& [name, open] : ways) {
        SCOPED_TRACE(name);
        open();
        ASSERT_NE(mainWindow(), nullptr);
        EXPECT_EQ(policy->policy(), ActivationPolicy::Policy::regular);
        mainWindow()->close();
        EXPECT_EQ(mainWindow(), nullptr);
        EXPECT_EQ(policy->policy(), ActivationPolicy::Policy::accessory);
    }
    EXPECT_TRUE(application->delegate->applicationShouldHandleReopen(true));
    EXPECT_EQ(mainWindow(), nullptr) << "another window is visible";
}

TEST_F(KestrowindAppTest, EveryWayToTheEndTakesTheQuitPath) {
    start({u"-ActivatePreset"_s, u"Full Speed"_s});
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"the item's menu", [this] { item->choose(localized("menuBar.quitButton")); }},
        {"the panel", [this] { press("menuBar.quitButton"); }},
        {"the window",
         [] {
             mainWindow()->requestActivate();
             EXPECT_TRUE(QTest::qWaitForWindowActive(mainWindow()));
             QTest::keyClick(mainWindow(), Qt::Key_Q, Qt::ControlModifier);
         }},
        {"a signal",
         [] {
             std::raise(SIGTERM);
             ::alarm(0); // which it set
         }},
    };
    int wanted = 0;
    for (const auto& [name, quit] : ways) {
        quit();
        ++wanted;
        EXPECT_TRUE(QTest::qWaitFor([&] { return application->terminations == wanted; })) << name;
        if (wanted > 1)
            continue;
        // The fans first, then the helper, then the end.
        for (const QString& last : {u"releaseControl"_s, u"shutDown"_s}) {
            ASSERT_TRUE(QTest::qWaitFor([&] { return helper.methods().contains(last); }));
            EXPECT_EQ(helper.methods().last(), last);
            EXPECT_FALSE(application->hasEnded);
            helper.calls.back().reply();
        }
        EXPECT_TRUE(QTest::qWaitFor([this] { return application->hasEnded; }));
        EXPECT_EQ(smc->openConnections(), 0U) << "the sampler's thread has ended";
        EXPECT_FALSE(activity->isUnderWay());
    }
    EXPECT_EQ(helper.methods().count(u"releaseControl"_s), 1) << "once, however often it is asked";
}

TEST_F(KestrowindAppTest, IsAtWorkInTheSystemsEyesWhileItDrivesTheFans) {
    start();
    const auto called = [this](const QString& method) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return helper.methods().contains(method); }));
        return helper.calls.at(static_cast<std::size_t>(helper.methods().indexOf(method)));
    };
    EXPECT_FALSE(activity->isUnderWay());
    reader.look(*mainWindow());
    reader.act(u"Full Speed"_s, RadioButton);
    const auto drive = called(u"setTargets"_s);
    EXPECT_TRUE(activity->isUnderWay());
    drive.replyTargets({6000});
    reader.act(u"Automatic"_s, RadioButton);
    const auto release = called(u"releaseControl"_s);
    EXPECT_TRUE(activity->isUnderWay());
    release.reply();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !activity->isUnderWay(); }));
}

TEST_F(KestrowindAppTest, GivesBackWhatClosedWindowsWereMadeOf) {
    start();
    mainWindow()->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return timesMemoryWasReturned == 1; }));
    ASSERT_NE(panel(), nullptr);
    Q_EMIT item->menuRequested();
    EXPECT_EQ(window("menuBar.panel.title"), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([this] { return timesMemoryWasReturned == 2; }));
}

TEST_F(KestrowindAppTest, FollowsTheSystemsColours) {
    start();
    const auto colours = [this] {
        return std::tuple(mainWindow()->color(), panel()->grabWindow().pixelColor(20, 20),
                          item->picture.cacheKey());
    };
    const auto dark = colours();
    appearance->scheme = ColorScheme::light;
    Q_EMIT appearance->colorSchemeChanged();
    EXPECT_NE(std::get<0>(colours()), std::get<0>(dark));
    EXPECT_NE(std::get<1>(colours()), std::get<1>(dark));
    EXPECT_NE(std::get<2>(colours()), std::get<2>(dark));
}

TEST_F(KestrowindAppTest, StaysHiddenOnlyWhereThereIsATray) {
    for (const bool comesLate : {true, false}) {
        const bool isLoginItem = comesLate;
        make(isLoginItem ? QStringList() : QStringList{u"-StartHidden"_s, u"YES"_s}, {}, false);
        application->isLoginItem = isLoginItem;
        app->start();
        EXPECT_EQ(mainWindow(), nullptr) << "a tray may still come";
        item->hasPlace = comesLate;
        ASSERT_TRUE(QTest::qWaitFor([this] { return item->looks == 1; }));
        EXPECT_EQ(mainWindow() == nullptr, comesLate);
    }
}

TEST_F(KestrowindAppTest, PrintsItsReadingsAndEndsWhenNobodyTakesThem) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    std::signal(SIGPIPE, SIG_IGN); // as in the program
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[0]);
    std::fflush(stdout);
    const int before = ::dup(STDOUT_FILENO);
    make({}, {.readings = ReadingsFormat::text});
    ::dup2(file.handle(), STDOUT_FILENO);
    static_cast<void>(QTest::qWaitFor([&] { return file.size() > 0; }));
    const int terminations = application->terminations;
    ::dup2(ends[1], STDOUT_FILENO);
    static_cast<void>(QTest::qWaitFor([this] { return application->terminations > 0; }));
    std::fflush(stdout);
    ::dup2(before, STDOUT_FILENO);
    EXPECT_EQ(terminations, 0);
    EXPECT_GT(application->terminations, 0);
    ASSERT_TRUE(file.seek(0));
    EXPECT_EQ(file.readLine().mid(8), // behind the time
              "  CPU  60.0 °C (max  60.0)  GPU    -- °C (max    --)  fan 0  2000 →  2100 rpm"
              "  Automatic  helper installed\n");
}

/// Nobody is at the pointer, and hardly anybody at the keyboard.
class AssistiveTechnologyTest : public KestrowindAppTest {
protected:
    void show(const QString& section) {
        reader.look(*mainWindow());
        reader.act(section, PageTab);
        EXPECT_TRUE(reader.state(section, PageTab).selected);
    }
    [[nodiscard]] bool isChosen(const QString& name) const {
        return reader.state(name, RadioButton).checked;
    }

    const QString automatic = u"Automatic"_s;
    const QString cool = u"Cool"_s;
    const QString card =
        u"Cool: "_s + localized("presets.card.spokenCaption")
                          .arg(localized("presets.card.coolCaption"), u"2"_s, u"3"_s);
};

TEST_F(AssistiveTechnologyTest, SwitchesPresetsByPillCardAndChip) {
    start();
    for (const auto& [place, name] :
         {std::pair(u"Dashboard"_s, cool), {u"Presets"_s, card}, {u"panel"_s, cool}}) {
        SCOPED_TRACE(place.toStdString());
        if (place == u"panel"_s)
            reader.look(*panel());
        else
            show(place);
        const auto changes = reader.heard(QAccessible::StateChanged, cool);
        reader.act(name, RadioButton);
        EXPECT_TRUE(isChosen(name));
        EXPECT_FALSE(isChosen(automatic));
        EXPECT_GT(reader.heard(QAccessible::StateChanged, cool), changes);
        reader.act(name, RadioButton, Action::toggleAction());
        EXPECT_TRUE(isChosen(name)) << "once more";
        reader.act(automatic, RadioButton);
        EXPECT_FALSE(isChosen(name));
    }
}

TEST_F(AssistiveTechnologyTest, HearsWhyNoPillCanBePressedAndWhereACardWent) {
    hasHelper = false;
    start();
    show(u"Presets"_s);
    reader.act(u"Cool: "_s + localized("mainWindow.presetBar.helperMissing"), RadioButton);
    EXPECT_FALSE(isChosen(cool));
    const auto moves = reader.heard(QAccessible::DescriptionChanged, cool);
    QAccessibleInterface* focused = reader.awaited(card, RadioButton);
    ASSERT_NE(focused, nullptr);
    focused->actionInterface()->doAction(Action::setFocusAction());
    QTest::keyClick(mainWindow(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(reader.heard(QAccessible::DescriptionChanged, cool), moves);
}

TEST_F(AssistiveTechnologyTest, WorksButtonsMenusFieldsSwitchesPickersAndSliders) {
    start();
    show(u"Presets"_s);
    const QString ways = localized("presets.card.newPreset");
    reader.act(localized("presets.card.menuButton").arg(ways), Button);
    EXPECT_NE(reader.awaited(ways, PopupMenu), nullptr);
    reader.act(localized("presets.contextMenu.new"), MenuItem);
    QAccessibleInterface* field =
        reader.awaited(localized("presets.rename.fieldLabel"), QAccessible::EditableText);
    ASSERT_NE(field, nullptr);
    field->setText(QAccessible::Value, u"Night"_s);
    reader.act(localized("presets.rename.confirm"), Button);
    reader.act(u"Night"_s, RadioButton);

    show(u"Curves"_s);
    const QString added = localized("curves.chart.pointAccessibilityLabel").arg(4);
    EXPECT_TRUE(reader.isGone(added));
    reader.act(localized("curves.chart.label"));
    reader.act(added, QAccessible::Slider, Action::decreaseAction());
    EXPECT_EQ(reader.heard(QAccessible::ValueChanged, added), 1);

    show(u"Settings"_s);
    const QString login = localized("settings.general.launchAtLogin.title");
    for (const QString& action : {Action::toggleAction(), Action::pressAction()}) {
        const bool before = loginItem->enabled;
        reader.act(login, CheckBox, action);
        EXPECT_EQ(loginItem->enabled, !before);
        EXPECT_EQ(reader.state(login, CheckBox).checked, !before);
    }
    const QString source = localized("settings.fanBoost.temperatureSource.title");
    const QString hottest = localized("settings.fanBoost.temperatureSource.hottest");
    reader.act(source, Button);
    EXPECT_NE(reader.awaited(source, PopupMenu), nullptr);
    EXPECT_TRUE(reader.state(localized("settings.fanBoost.temperatureSource.average")).checked);
    reader.act(hottest, MenuItem);
    EXPECT_NE(reader.awaited(source + u": "_s + hottest, Button), nullptr);

    reader.look(*panel());
    const QString boost = localized("menuBar.boost.caption");
    QAccessibleValueInterface* slider = reader.value(boost);
    ASSERT_NE(slider, nullptr);
    EXPECT_EQ(slider->minimumValue(), 0);
    EXPECT_EQ(slider->maximumValue(), 100);
    reader.act(boost, QAccessible::Slider, Action::increaseAction());
    EXPECT_EQ(slider->currentValue(), 5);
    reader.act(boost, QAccessible::Slider, Action::decreaseAction());
    EXPECT_EQ(slider->currentValue(), 0);
    EXPECT_EQ(reader.heard(QAccessible::ValueChanged, boost), 2);
    slider->setCurrentValue(42);
    EXPECT_EQ(slider->currentValue(), 40);
}

} // namespace
} // namespace kestrowind
