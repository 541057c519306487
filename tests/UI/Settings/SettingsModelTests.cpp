#include "SettingsMachine.h"

#include "Core/LocalizedText.h"
#include "Core/TemperatureSource.h"
#include "Support/QtPrinters.h"

#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(HelperSettings, RunsOneOperationAtATimeAndShowsItsFailureUntilTheNext) {
    SettingsMachine machine;
    auto settings =
        std::make_unique<HelperSettings>(machine.helper, machine.control, machine.operation);
    settings->install();
    EXPECT_TRUE(settings->isWorking());
    settings->install();
    settings->uninstall();
    EXPECT_EQ(machine.helper.openInstallations.size(), 1U);
    EXPECT_EQ(machine.helper.uninstallations, 0);

    machine.helper.endInstallation(std::unexpected(
        InstallError{InstallError::Kind::adminScriptFailed, u"User canceled. (-128)"_s}));
    EXPECT_FALSE(settings->isWorking());
    EXPECT_EQ(settings->errorMessage(),
              localized("settings.helper.error.adminScriptFailed").arg(u"User canceled. (-128)"_s));

    settings->uninstall();
    EXPECT_EQ(machine.helper.uninstallations, 1);
    EXPECT_EQ(settings->errorMessage(), QString());

    // The screen is left and entered again while the password dialog is open.
    settings->install();
    settings = std::make_unique<HelperSettings>(machine.helper, machine.control, machine.operation);
    EXPECT_TRUE(settings->isWorking());
    settings.reset();
    machine.helper.endInstallation(
        std::unexpected(InstallError{InstallError::Kind::launchFailed, u"no runner"_s}));
    settings = std::make_unique<HelperSettings>(machine.helper, machine.control, machine.operation);
    EXPECT_EQ(settings->errorMessage(), u"no runner"_s);
    settings = nullptr;
    settings = std::make_unique<HelperSettings>(machine.helper, machine.control, machine.operation);
    EXPECT_EQ(settings->errorMessage(), QString()) << "it was seen";
}

TEST(HelperSettings, AsksForTheStatusAgainAndAgainWhileItIsSeen) {
    SettingsMachine machine;
    WaitingHelper& helper = machine.helper;
    HelperSettings settings(helper, machine.control, machine.operation, 20ms);
    const auto nothingFollows = [&] {
        const int before = helper.questions;
        return !QTest::qWaitFor([&] { return helper.questions > before; }, 100);
    };
    EXPECT_TRUE(nothingFollows()) << "nobody sees it";

    settings.setSeen(true);
    EXPECT_EQ(helper.questions, 1) << "at once";
    EXPECT_TRUE(nothingFollows()) << "the interval begins with the end of the question";
    for (const int next : {2, 3}) {
        helper.answerQuestions();
        ASSERT_TRUE(QTest::qWaitFor([&] { return helper.questions == next; }));
    }

    settings.setSeen(false);
    helper.answerQuestions();
    EXPECT_TRUE(nothingFollows());

    // A question of the visit before leads to no other beside those of this visit.
    settings.setSeen(true);
    settings.setSeen(false);
    settings.setSeen(true);
    EXPECT_EQ(helper.questions, 5);
    EXPECT_EQ(helper.openQuestions.size(), 2U);
    const auto ofThisVisit = helper.openQuestions.back();
    helper.openQuestions.pop_back();
    helper.answerQuestions();
    EXPECT_TRUE(nothingFollows());
    helper.openQuestions.push_back(ofThisVisit);
    helper.answerQuestions();
    ASSERT_TRUE(QTest::qWaitFor([&] { return helper.questions == 6; }));
}

TEST(HelperSettings, DoesNotPraiseAHelperThatDoesNothing) {
    SettingsMachine machine;
    machine.helper.setState(HelperState::installed);
    HelperSettings settings(machine.helper, machine.control, machine.operation);
    QSignalSpy changes(&settings, &HelperSettings::changed);
    EXPECT_EQ(settings.status().tone, MessageTone::Tone::Good);
    const auto sample = [&](const std::vector<SMCFanReading>& fans) {
        machine.telemetry.ingest({.timestamp = {}, .temperatures = {}, .fans = fans});
    };
    ASSERT_TRUE(QTest::qWaitFor([&] {
        sample({{.index = 0}});
        return settings.status().tone == MessageTone::Tone::Warning;
    }));
    EXPECT_EQ(settings.status().title, localized("settings.helper.status.denied.title"));
    sample({});
    EXPECT_EQ(settings.status().tone, MessageTone::Tone::Good);
    EXPECT_EQ(changes.size(), 2);
}

TEST(FanBoostSettings, OffersTwoSourcesAndShowsTheOneThatCounts) {
    SettingsMachine machine;
    FanBoostSettings settings(*machine.defaults);
    QSignalSpy changes(&settings, &FanBoostSettings::temperatureSourceChanged);
    EXPECT_EQ(settings.temperatureSource(), 0);
    settings.chooseTemperatureSource(1);
    EXPECT_EQ(currentTemperatureSource(*machine.defaults), TemperatureSource::hottestCore);
    EXPECT_EQ(settings.temperatureSource(), 1);
    EXPECT_GT(changes.size(), 0);
    settings.chooseTemperatureSource(7);
    settings.chooseTemperatureSource(-1);
    EXPECT_EQ(settings.temperatureSource(), 1);

    // What a launch argument says counts, whatever is chosen.
    const auto argued = machine.home.defaults({u"-fanBoostTemperatureSource"_s, u"hottestCore"_s});
    FanBoostSettings overruled(*argued);
    overruled.chooseTemperatureSource(0);
    EXPECT_EQ(overruled.temperatureSource(), 1);
}

TEST(GeneralSettings, ShowsWhatTheSystemSaysOfTheLoginItem) {
    SettingsMachine machine;
    FakeLoginItem& item = machine.loginItem;
    GeneralSettings settings(*machine.defaults, item);
    QSignalSpy shown(&settings, &GeneralSettings::launchesAtLoginChanged);
    EXPECT_FALSE(settings.launchesAtLogin());
    settings.setLaunchesAtLogin(true);
    EXPECT_TRUE(item.enabled);
    item.enabled = false; // elsewhere
    settings.appear();
    EXPECT_FALSE(settings.launchesAtLogin());
    item.enabled = true;
    item.failure = u"Permission denied"_s;
    settings.setLaunchesAtLogin(true);
    EXPECT_EQ(item.changes, 1) << "it already is";
    EXPECT_EQ(settings.launchAtLoginError(), QString());

    shown.clear();
    settings.setLaunchesAtLogin(false);
    EXPECT_EQ(settings.launchAtLoginError(), u"Permission denied"_s);
    EXPECT_TRUE(settings.launchesAtLogin());
    EXPECT_EQ(shown.size(), 2) << "there and back, so that the switch moves back too";
    item.failure.clear();
    settings.setLaunchesAtLogin(false);
    EXPECT_EQ(settings.launchAtLoginError(), QString());
    EXPECT_FALSE(item.enabled);
}

} // namespace
} // namespace kestrowind
