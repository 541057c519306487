#include "Core/LocalizedText.h"
#include "Core/TemperatureSource.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Support/FakeLoginItem.h"
#include "Support/FakeSystemInformation.h"
#include "Support/QtPrinters.h"
#include "UI/RoomView.h"
#include "UI/Settings/SettingsModel.h"
#include "UI/TestState.h"

#include <QCoroFuture>
#include <QPromise>
#include <gmock/gmock.h>

#include <deque>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// A helper that the test answers for.
class WaitingHelper final : public PreviewHelperClient {
public:
    using Installed = std::expected<void, InstallError>;

    std::deque<QPromise<void>> questions;
    std::deque<QPromise<Installed>> installations;
    int removals = 0;

    QCoro::Task<std::optional<HelperStatus>> fetchStatus() override {
        questions.emplace_back().start();
        co_await questions.back().future();
        co_return lastStatus();
    }
    QCoro::Task<Installed> install() override {
        installations.emplace_back().start();
        co_return co_await installations.back().future();
    }
    QCoro::Task<void> uninstall() override {
        ++removals;
        co_return;
    }

    void answer(std::size_t question) {
        questions[question].finish();
        QCoreApplication::processEvents();
    }
    void failInstallation(const QString& message) {
        installations.back().addResult(
            std::unexpected(InstallError{InstallError::Kind::launchFailed, message}));
        installations.back().finish();
        QCoreApplication::processEvents();
    }
};

// What the settings work on.
struct SettingsMachine : StateWith<WaitingHelper> {
    // What a launch argument says counts, whatever is chosen.
    SettingsMachine()
        : StateWith({u"-notifiesStandingFan"_s, u"YES"_s}, 20ms) {}
    // A question that nobody answered would keep its asker.
    ~SettingsMachine() {
        for (std::size_t i = 0; i < helper->questions.size(); ++i)
            helper->answer(i);
    }

    SettingsServices services() {
        return {.helper = *helper,
                .control = appState->control(),
                .helperOperation = operation,
                .userDefaults = *defaults,
                .loginItem = loginItem,
                .information = information};
    }

    HelperOperation operation{*helper};
    FakeLoginItem loginItem;
    FakeSystemInformation information;
};

TEST(HelperSettings, AsksForTheStatusAgainAndAgainWhileItIsSeen) {
    SettingsMachine machine;
    WaitingHelper& helper = *machine.helper;
    HelperSettings settings(helper, machine.appState->control(), machine.operation,
                            machine.information, 20ms);
    std::size_t before = 0;
    const auto asks = [&](std::size_t more) {
        before += more;
        static_cast<void>(QTest::qWaitFor([&] { return helper.questions.size() > before; }, 100));
        return helper.questions.size() == before;
    };
    EXPECT_TRUE(asks(0)) << "nobody sees it";
    settings.setSeen(true);
    EXPECT_TRUE(asks(1)) << "at once; the interval begins with the end of the question";
    helper.answer(0);
    EXPECT_TRUE(asks(1));
    helper.answer(1);
    settings.setSeen(false);
    EXPECT_TRUE(asks(0));

    // A question of the visit before leads to no other beside those of this visit.
    settings.setSeen(true);
    settings.setSeen(false);
    settings.setSeen(true);
    EXPECT_TRUE(asks(2));
    helper.answer(2);
    EXPECT_TRUE(asks(0));
    helper.answer(3);
    EXPECT_TRUE(asks(1));
}

class SettingsScreen : public testing::Test {
protected:
    void SetUp() override { view.showActive(); }

    bool says(const QString& text, QAccessible::Role role = QAccessible::AlertMessage) {
        return view.named(text, role) != nullptr;
    }
    QQuickItem* button(const QByteArray& key) {
        return view.named(localized(key), QAccessible::Button);
    }
    void click(const char* key) { view.click(localized(key)); }
    /// The mean of the symbol to the left of what is said, in a word.
    QString symbolColor(const QQuickItem& words) {
        const QPoint corner = words.mapToScene({-46, words.height() / 2 - 17}).toPoint();
        const QImage symbol = view.grabWindow().copy({corner, QSize(34, 34)});
        const QColor mean = symbol.scaled(1, 1, {}, Qt::SmoothTransformation).pixelColor(0, 0);
        return mean.saturation() < 20 ? u"grey"_s : mean.hue() < 60 ? u"orange"_s : u"green"_s;
    }

    SettingsMachine machine;
    SettingsModel model{machine.services()};
    RoomView view{u"Settings/SettingsRootView.qml"_s, model, {820, 900}};
};

TEST_F(SettingsScreen, SaysHowTheHelperIsAndWhatCanBeDoneAboutIt) {
    using enum HelperState;
    for (const auto& [state, text, color, install, isWanted, canRemove] :
         {std::tuple(notInstalled, "notInstalled", u"grey"_s, "installButton", true, false),
          std::tuple(installed, "installed", u"green"_s, "reinstallButton", false, true),
          std::tuple(installed, "denied", u"orange"_s, "reinstallButton", false, true),
          std::tuple(unreachable, "unreachable", u"orange"_s, "reinstallHelperButton", true, true),
          std::tuple(installed, "installed", u"green"_s, "reinstallButton", false, true)}) {
        SCOPED_TRACE(text);
        machine.helper->setState(state);
        // Of a fan, and nothing is done for it; or there is none.
        const bool isDenied = QByteArray(text) == "denied";
        ASSERT_TRUE(QTest::qWaitFor([&] {
            machine.telemetry().ingest({.timestamp = {},
                                        .temperatures = {},
                                        .fans = std::vector<SMCFanReading>(isDenied ? 1 : 0)});
            return machine.appState->control().facts().isDenied == isDenied;
        }));
        const QByteArray key = QByteArray("settings.helper.status.") + text;
        const QQuickItem* words = view.named(localized(key + ".title"));
        ASSERT_NE(words, nullptr);
        EXPECT_EQ(view.description(*words), localized(key + ".description"));
        EXPECT_EQ(symbolColor(*words), color);
        const QQuickItem* button = this->button(QByteArray("settings.helper.") + install);
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(button->property("prominent"), isWanted);
        EXPECT_EQ(this->button("settings.helper.uninstallButton") != nullptr, canRemove);
    }
}

TEST_F(SettingsScreen, WorksOnTheHelperOnceAtATimeAndShowsItsFailureUntilTheNextOrItIsLeft) {
    const QString spinner = localized("settings.helper.workingSpinner");
    const auto leaveScreen = [this] {
        HelperSettings(*machine.helper, machine.appState->control(), machine.operation,
                       machine.information);
    };
    EXPECT_FALSE(says(spinner, QAccessible::ProgressBar));
    click("settings.helper.reinstallButton");
    machine.operation.install();
    machine.operation.uninstall();
    EXPECT_EQ(machine.helper->installations.size(), 1U);
    EXPECT_EQ(machine.helper->removals, 0);
    EXPECT_EQ(button("settings.helper.reinstallButton"), nullptr);
    EXPECT_TRUE(says(spinner, QAccessible::ProgressBar));
    const double before = view.rootObject()->implicitHeight();
    machine.helper->failInstallation(u"no runner"_s);
    EXPECT_TRUE(says(u"no runner"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.rootObject()->implicitHeight() > before; }));

    // Nobody has seen what comes of it when the screen is left while the password dialog is open.
    click("settings.helper.reinstallButton");
    EXPECT_FALSE(says(u"no runner"_s));
    leaveScreen();
    EXPECT_TRUE(machine.operation.isWorking());
    machine.helper->failInstallation(u"User canceled. (-128)"_s);
    EXPECT_TRUE(says(u"User canceled. (-128)"_s));
    leaveScreen();
    EXPECT_FALSE(says(u"User canceled. (-128)"_s));
    click("settings.helper.uninstallButton");
    EXPECT_EQ(machine.helper->removals, 1);
    EXPECT_FALSE(says(spinner, QAccessible::ProgressBar));
}

TEST_F(SettingsScreen, ReadsWhatOthersMayHaveChangedWhenItComesOnScreen) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return machine.helper->questions.size() == 1; }));
    view.hide();
    machine.loginItem.enabled = true;
    view.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return machine.helper->questions.size() == 2; }));
    EXPECT_TRUE(model.general()->launchesAtLogin());

    const auto areSwitchedOff = [this] {
        return std::pair(says(localized("settings.general.launchAtLogin.approvalNotice")),
                         says(localized("settings.helper.approvalNotice")));
    };
    EXPECT_EQ(areSwitchedOff(), std::pair(false, false));
    for (const bool isOff : {true, false}) {
        view.hide();
        machine.loginItem.isSwitchedOff = machine.information.isJobSwitchedOff = isOff;
        view.show();
        EXPECT_TRUE(QTest::qWaitFor([&] { return areSwitchedOff() == std::pair(isOff, isOff); }));
    }
    machine.information.isJobSwitchedOff = true;
    machine.helper->setState(HelperState::notInstalled);
    view.hide();
    view.show();
    EXPECT_EQ(areSwitchedOff().second, false) << "there is none";
}

TEST_F(SettingsScreen, AddsTheApplicationToTheLoginItemsByAClickAnywhereInTheRow) {
    auto& item = machine.loginItem;
    const QString name = localized("settings.general.launchAtLogin.title");
    auto* const row = view.named(name, QAccessible::CheckBox);
    ASSERT_NE(row, nullptr);
    for (const QPointF at : {QPointF(30, 10), QPointF(row->width() / 2, row->height() - 4),
                             QPointF(row->width() - 30, row->height() / 2)}) {
        const bool before = item.enabled;
        QTest::mouseClick(&view, Qt::LeftButton, {}, row->mapToScene(at).toPoint());
        EXPECT_EQ(item.enabled, !before);
        EXPECT_EQ(row->property("checked"), !before);
    }
    item.failure = u"Read-only file system"_s;
    view.click(name);
    EXPECT_EQ(row->property("checked"), true) << "put back";
    EXPECT_TRUE(says(item.failure));
    const QString failure = std::exchange(item.failure, {});
    view.click(name);
    EXPECT_FALSE(item.enabled);
    EXPECT_FALSE(says(failure));
    item.enabled = true; // elsewhere
    item.failure = failure;
    view.click(name);
    EXPECT_FALSE(says(failure)) << "it already is";
}

TEST_F(SettingsScreen, FlipsADefaultByKeyAndFollowsIt) {
    for (const auto& [text, key, isArgued] :
         {std::tuple("general.hideDockIcon", "hideDockIconWhenWindowClosed", false),
          std::tuple("notifications.overheating", "notifiesOverheating", false),
          std::tuple("notifications.standingFan", "notifiesStandingFan", true),
          std::tuple("notifications.helperFailure", "notifiesHelperFailure", false)}) {
        SCOPED_TRACE(key);
        const QByteArray texts = QByteArray("settings.") + text;
        auto* const row = view.named(localized(texts + ".title"), QAccessible::CheckBox);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(view.description(*row), localized(texts + ".subtitle"));
        row->forceActiveFocus(Qt::TabFocusReason);
        bool stored = false;
        for (const Qt::Key press : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            stored = !stored || isArgued;
            view.press(press);
            EXPECT_EQ(row->property("checked"), stored);
        }
        EXPECT_EQ(machine.home.defaults()->boolean(QLatin1String(key)), !isArgued);
        machine.defaults->setBoolean(QLatin1String(key), false);
        EXPECT_EQ(row->property("checked"), isArgued) << "elsewhere";
    }
}

TEST_F(SettingsScreen, ChoosesTheTemperatureByClick) {
    click("settings.fanBoost.temperatureSource.title");
    click("settings.fanBoost.temperatureSource.hottest");
    const QString hottest = localized("settings.fanBoost.temperatureSource.hottest");
    const QQuickItem* picker = view.named(localized("settings.fanBoost.temperatureSource.title"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.description(*picker) == hottest; }));
    EXPECT_EQ(currentTemperatureSource(*machine.defaults), TemperatureSource::hottestCore);
    for (const int none : {-1, 2})
        model.fanBoost()->chooseTemperatureSource(none);
    EXPECT_EQ(view.description(*picker), hottest);
}

TEST_F(SettingsScreen, ShowsVersionsAndWarningsOnlyWhenThereAreSome) {
    using enum HelperControlPhase;
    using Shown = std::array<bool, 5>;
    constexpr auto text = QAccessible::StaticText;
    const auto report = [&](HelperControlPhase phase, std::optional<std::string> error,
                            const std::string& version) {
        machine.helper->setLastStatus(
            HelperStatus{.version = version, .phase = phase, .lastError = std::move(error)});
        // Outdated, unlocking, failed, failed for no reason, the helper's version.
        return Shown{says(localized("settings.helper.outdatedNotice")),
                     says(localized("settings.helper.unlockingCaption"), text), says(u"stuck"_s),
                     says({}), says(u"Helper version: 9.9"_s, text)};
    };
    const std::string current = HelperConstants::helperVersion;
    EXPECT_TRUE(says(u"Version: 1.0 (1)"_s, text)) << "of a bundle without";
    EXPECT_FALSE(says(u"Helper version: "_s, text));
    EXPECT_EQ(report(unlocking, "stuck", "9.9"), (Shown{true, true, false, false, true}));
    EXPECT_EQ(report(failed, "stuck", current), (Shown{false, false, true, false, false}));
    EXPECT_EQ(report(failed, {}, current), Shown{});
}

} // namespace
} // namespace kestrowind
