#include "SettingsMachine.h"

#include "Core/HelperClient.h"
#include "Core/LocalizedText.h"
#include "Core/TelemetryStore.h"
#include "Platform/AdminScriptRunner.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/FakeHelperConnection.h"
#include "Support/QtPrinters.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Phase = HelperControlPhase;

TEST(HelperSettings, SaysHowTheHelperIsAndWhatCanBeDone) {
    using HelperTone::Tone;
    struct Row {
        HelperState state;
        QString symbolName;
        Tone tone;
        const char* install;
        bool wantsInstall;
        const char* uninstall;
    };
    SettingsMachine machine;
    const HelperSettings settings(machine.helper, machine.operation);
    for (const Row& row : {
             Row{HelperState::notInstalled, u"shield.slash.fill"_s, Tone::Neutral,
                 "settings.helper.installButton", true, nullptr},
             Row{HelperState::installed, u"checkmark.seal.fill"_s, Tone::Good,
                 "settings.helper.reinstallButton", false, "settings.helper.uninstallButton"},
             Row{HelperState::unreachable, u"exclamationmark.triangle.fill"_s, Tone::Warning,
                 "settings.helper.reinstallHelperButton", true, "settings.helper.uninstallButton"},
         }) {
        machine.helper.setState(row.state);
        const HelperStatusFacts facts = settings.status();
        const QByteArray key = "settings.helper.status." + text(row.state).toLatin1();
        EXPECT_EQ(facts.symbolName, row.symbolName);
        EXPECT_EQ(facts.tone, row.tone);
        EXPECT_EQ(facts.title, localized((key + ".title").constData()));
        EXPECT_EQ(facts.description, localized((key + ".description").constData()));
        EXPECT_EQ(facts.installTitle, localized(row.install));
        EXPECT_EQ(facts.wantsInstall, row.wantsInstall);
        EXPECT_EQ(facts.uninstallTitle, row.uninstall ? localized(row.uninstall) : QString());
    }
}

TEST(HelperSettings, TellsWhatTheHelperReports) {
    struct Row {
        std::optional<HelperStatus> status;
        bool isOutdated, hasFailure, isUnlocking;
    };
    SettingsMachine machine;
    const HelperSettings settings(machine.helper, machine.operation);
    const AboutSettings about(machine.information, machine.helper);
    for (const Row& row : {
             Row{std::nullopt, false, false, false},
             Row{statusWith(Phase::idle), false, false, false},
             Row{statusWith(Phase::idle, "stuck"), false, false, false},
             Row{statusWith(Phase::failed), false, false, false},
             Row{statusWith(Phase::failed, "stuck"), false, true, false},
             Row{statusWith(Phase::unlocking, {}, "1.0.1"), true, false, true},
         }) {
        machine.helper.setLastStatus(row.status);
        EXPECT_EQ(settings.isOutdated(), row.isOutdated);
        EXPECT_EQ(settings.hasFailure(), row.hasFailure);
        EXPECT_EQ(settings.failure(), row.hasFailure ? u"stuck"_s : QString());
        EXPECT_EQ(settings.isUnlocking(), row.isUnlocking);
        EXPECT_EQ(about.hasHelperVersion(), row.status.has_value());
    }
    EXPECT_EQ(about.helperVersion(), u"1.0.1"_s);
}

TEST(HelperSettings, RunsOneOperationAtATimeAndShowsItsFailureUntilTheNext) {
    SettingsMachine machine;
    auto settings = std::make_unique<HelperSettings>(machine.helper, machine.operation);
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

    settings->install();
    EXPECT_EQ(settings->errorMessage(), QString());
    machine.helper.endInstallation(
        std::unexpected(InstallError{InstallError::Kind::resourcesMissing}));
    EXPECT_EQ(settings->errorMessage(), localized("settings.helper.error.resourcesMissing"));
    settings->uninstall();
    EXPECT_EQ(machine.helper.uninstallations, 1);
    EXPECT_EQ(settings->errorMessage(), QString());

    // The screen is left and entered again while the password dialog is open.
    settings->install();
    settings = std::make_unique<HelperSettings>(machine.helper, machine.operation);
    EXPECT_TRUE(settings->isWorking());
    settings.reset();
    machine.helper.endInstallation(
        std::unexpected(InstallError{InstallError::Kind::launchFailed, u"no runner"_s}));
    settings = std::make_unique<HelperSettings>(machine.helper, machine.operation);
    EXPECT_EQ(settings->errorMessage(), u"no runner"_s);
    settings = nullptr;
    settings = std::make_unique<HelperSettings>(machine.helper, machine.operation);
    EXPECT_EQ(settings->errorMessage(), QString()) << "it was seen";
}

TEST(HelperSettings, AsksForTheStatusAgainAndAgainWhileItIsSeen) {
    SettingsMachine machine;
    WaitingHelper& helper = machine.helper;
    HelperSettings settings(helper, machine.operation, 20ms);
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
    helper.answerQuestions();
    ASSERT_TRUE(QTest::qWaitFor([&] { return helper.questions == 6; }));
    EXPECT_TRUE(nothingFollows());
}

TEST(HelperSettings, AsksASilentHelperOnceInItsPatienceAndTheInterval) {
    FakeHelper silent;
    FakeSystemInformation files;
    files.files = {QString::fromLatin1(HelperConstants::daemonPlistPath),
                   QString::fromLatin1(HelperConstants::helperInstallPath)};
    ProcessScriptRunner runner(u"/nonexistent"_s);
    HelperClient client({.makeConnection = silent.factory(),
                         .information = files,
                         .scriptRunner = runner,
                         .callTimeout = 60ms});
    HelperOperation operation(client);
    HelperSettings settings(client, operation, 40ms);
    QElapsedTimer timer;
    timer.start();
    settings.setSeen(true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return silent.calls.size() == 4; }));
    EXPECT_GE(timer.elapsed(), 3 * 100);
    EXPECT_EQ(client.state(), HelperState::installed);
    settings.setSeen(false);
}

TEST(FanBoostSettings, CountsFromTheNextSampleOn) {
    SettingsMachine machine;
    FanBoostSettings settings(*machine.defaults);
    TelemetryStore telemetry(*machine.defaults, [] { return std::make_shared<SimulatedSMC>(); });
    const auto temperatureAfterSample = [&] {
        telemetry.ingest(
            {.timestamp = std::chrono::system_clock::now(),
             .temperatures = {
                 .cpuAverage = 50, .cpuMax = 80, .gpuAverage = 40, .gpuMax = 45, .hottest = 80}});
        return telemetry.systemTemperature().value_or(0);
    };
    QSignalSpy changes(&settings, &FanBoostSettings::temperatureSourceChanged);
    EXPECT_EQ(settings.temperatureSource(), 0);
    EXPECT_EQ(temperatureAfterSample(), 50);
    settings.chooseTemperatureSource(1);
    EXPECT_EQ(machine.defaults->string(u"fanBoostTemperatureSource"_s), u"hottestCore"_s);
    EXPECT_EQ(settings.temperatureSource(), 1);
    EXPECT_GT(changes.size(), 0);
    EXPECT_EQ(temperatureAfterSample(), 80);
    settings.chooseTemperatureSource(7);
    settings.chooseTemperatureSource(-1);
    EXPECT_EQ(settings.temperatureSource(), 1);
    settings.chooseTemperatureSource(0);
    EXPECT_EQ(machine.defaults->string(u"fanBoostTemperatureSource"_s), u"average"_s);

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

TEST(GeneralSettings, StoresWhetherTheDockIconHides) {
    SettingsMachine machine;
    GeneralSettings settings(*machine.defaults, machine.loginItem);
    EXPECT_TRUE(settings.hidesDockIcon());
    settings.setHidesDockIcon(false);
    EXPECT_FALSE(settings.hidesDockIcon());
    EXPECT_FALSE(machine.home.defaults()->boolean(u"hideDockIconWhenWindowClosed"_s));
}

TEST(NotificationSettings, AreOnUntilSwitchedOffEachForItself) {
    SettingsMachine machine;
    registerAlertDefaults(*machine.defaults);
    NotificationSettings settings(*machine.defaults);
    const auto all = [&] {
        return std::array{settings.helperFailure(), settings.standingFan(), settings.overheating()};
    };
    QSignalSpy changes(&settings, &NotificationSettings::changed);
    EXPECT_EQ(all(), (std::array{true, true, true}));
    settings.setStandingFan(false);
    EXPECT_EQ(all(), (std::array{true, false, true}));
    settings.setHelperFailure(false);
    settings.setOverheating(false);
    settings.setStandingFan(true);
    EXPECT_EQ(all(), (std::array{false, true, false}));
    EXPECT_FALSE(machine.home.defaults()->boolean(alertKey(AlertKind::overheating))) << "stored";
    changes.clear();
    machine.defaults->setBoolean(alertKey(AlertKind::overheating), true);
    machine.defaults->setBoolean(u"another"_s, true);
    EXPECT_EQ(changes.size(), 1);
}

TEST(AboutSettings, NamesTheVersionAsTheBundleDoes) {
    struct Row {
        QHash<QString, QString> texts;
        QString version;
    };
    const QString version = u"CFBundleShortVersionString"_s;
    const QString build = u"CFBundleVersion"_s;
    for (const auto& [texts, shown] :
         {Row{{{version, u"2.3"_s}, {build, u"41"_s}}, u"2.3 (41)"_s},
          Row{{{version, u"2.3"_s}}, u"2.3 (1)"_s}, Row{{}, u"1.0 (1)"_s}}) {
        SettingsMachine machine;
        machine.information.bundleTexts = texts;
        EXPECT_EQ(AboutSettings(machine.information, machine.helper).version(), shown);
    }
}

} // namespace
} // namespace kestrowind
