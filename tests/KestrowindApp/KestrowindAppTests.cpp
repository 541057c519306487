#include "KestrowindApp/KestrowindApp.h"

#include "Core/LocalizedText.h"
#include "Platform/Linux/RememberedActivationPolicy.h"
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
    int terminations = 0;
    bool hasEnded = false;

    void setDelegate(ApplicationDelegate& newDelegate) override { delegate = &newDelegate; }
    void terminate() override {
        ++terminations;
        hasEnded = delegate && delegate->applicationShouldTerminate() ==
                                   ApplicationDelegate::TerminateReply::now;
    }
    void replyToShouldTerminate() override { hasEnded = true; }
};

/// Older copies of the application: one ends when it is asked to, one has to be made to.
class FakeCopies final : public RunningApplications {
public:
    QStringList notes;

    std::vector<std::unique_ptr<RunningApplication>>
    olderCopies(const QString& bundleIdentifier) override {
        notes.append(bundleIdentifier);
        std::vector<std::unique_ptr<RunningApplication>> copies;
        copies.push_back(std::make_unique<Copy>(notes, true));
        copies.push_back(std::make_unique<Copy>(notes, false));
        return copies;
    }

private:
    class Copy final : public RunningApplication {
    public:
        Copy(QStringList& notes, bool isPolite)
            : m_notes(notes)
            , m_isPolite(isPolite) {}
        void terminate() override { m_notes.append(u"asked"_s); }
        void forceTerminate() override {
            m_notes.append(m_isPolite ? u"forced in vain"_s : u"forced"_s);
        }
        [[nodiscard]] bool isTerminated() const override { return m_isPolite; }

    private:
        QStringList& m_notes;
        bool m_isPolite;
    };
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
        platform.userDefaults = home.defaults(arguments);
        platform.runningApplications = kept(copies)();
        platform.activationPolicy = kept(policy)();
        platform.loginItem = std::make_unique<FakeLoginItem>();
        platform.helperConnection = helper.factory();
        platform.smc = [this] { return smc; };
        platform.systemAppearance = kept(appearance);
        platform.notifications = kept(notifications);
        platform.returnFreedMemory = [this] { ++timesMemoryWasReturned; };
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
    void start(const QStringList& arguments = {}, bool hasTray = true) {
        make(arguments, {}, hasTray);
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

    TestHome home;
    std::shared_ptr<SimulatedSMC> smc = std::make_shared<SimulatedSMC>();
    FakeHelper helper;
    // The application has them.
    FakeApplication* application = nullptr;
    FakeSystemInformation* information = nullptr;
    FakeCopies* copies = nullptr;
    RememberedActivationPolicy* policy = nullptr;
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
    }
    EXPECT_EQ(helper.methods().count(u"releaseControl"_s), 1) << "once, however often it is asked";
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
        start({u"-StartHidden"_s, u"YES"_s}, false);
        EXPECT_EQ(mainWindow(), nullptr) << "a tray may still come";
        item->hasPlace = comesLate;
        ASSERT_TRUE(QTest::qWaitFor([this] { return item->looks == 1; }));
        EXPECT_EQ(mainWindow() == nullptr, comesLate);
    }
}

TEST_F(KestrowindAppTest, TakesThePlaceOfOlderCopies) {
    start();
    EXPECT_THAT(copies->notes, ElementsAre(u"app.kestrowind"_s, u"asked"_s, u"asked"_s));
    EXPECT_TRUE(QTest::qWaitFor([this] { return copies->notes.size() > 3; }));
    EXPECT_EQ(copies->notes.last(), u"forced"_s);
}

/// Standard output goes to another descriptor while it lives.
class OutputTo {
public:
    explicit OutputTo(int descriptor) { ::dup2(descriptor, STDOUT_FILENO); }
    OutputTo(const OutputTo&) = delete;
    OutputTo& operator=(const OutputTo&) = delete;
    ~OutputTo() {
        std::fflush(stdout);
        ::dup2(m_before, STDOUT_FILENO);
        ::close(m_before);
    }

private:
    int m_before = ::dup(STDOUT_FILENO);
};

TEST_F(KestrowindAppTest, PrintsItsReadingsAndEndsWhenNobodyTakesThem) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    std::signal(SIGPIPE, SIG_IGN); // as in the program
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[0]);
    std::fflush(stdout);
    make({}, {.readings = ReadingsFormat::text});
    {
        const OutputTo output(file.handle());
        EXPECT_TRUE(QTest::qWaitFor([&] { return file.size() > 0; }));
        EXPECT_EQ(application->terminations, 0);
    }
    ASSERT_TRUE(file.seek(0));
    EXPECT_EQ(file.readAll().mid(8), // behind the time
              "  CPU  60.0 °C (max  60.0)  GPU    -- °C (max    --)  fan 0  2000 →  2100 rpm"
              "  Automatic  helper installed\n");
    const OutputTo output(ends[1]);
    EXPECT_TRUE(QTest::qWaitFor([this] { return application->terminations > 0; }));
}

} // namespace
} // namespace kestrowind
