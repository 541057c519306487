#include "Core/HelperClient.h"
#include "Core/HelperInstallation.h"
#include "Platform/AdminScriptRunner.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Support/FakeHelperConnection.h"
#include "Support/FakeSystemInformation.h"
#include "Support/QtPrinters.h"

#include <QCoroTask>
#include <QElapsedTimer>
#include <QProcess>
#include <QPromise>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>

#include <thread>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::IsEmpty;
using Targets = HelperControlling::Targets;

const QString plist = QString::fromLatin1(HelperConstants::daemonPlistPath);
const QString executable = QString::fromLatin1(HelperConstants::helperInstallPath);

const QHash<QString, QString> resources{{u"KestrowindHelper"_s, u"/h"_s},
                                        {u"app.kestrowind.helper.plist"_s, u"/p"_s}};

class FakeScriptRunner final : public AdminScriptRunner {
public:
    QStringList scripts;
    ScriptOutcome outcome;
    std::function<void()> effect = [] {};
    bool isAsking = false; ///< a password dialog that nobody answers before the test does
    QPromise<ScriptOutcome> dialog;

    QFuture<ScriptOutcome> run(const QString& appleScript) override {
        scripts.append(appleScript);
        dialog = {};
        dialog.start();
        if (!isAsking)
            answer();
        return dialog.future();
    }
    void answer() {
        effect();
        dialog.addResult(outcome);
        dialog.finish();
    }
};

class HelperClientTest : public testing::Test {
protected:
    HelperClientTest() {
        machine.files = {plist, executable};
        makeClient();
    }
    void makeClient() {
        client = std::make_unique<HelperClient>(HelperClient::Environment{
            .makeConnection = helper.factory(),
            .information = machine,
            .scriptRunner = runner,
            .callTimeout = 60ms,
        });
    }
    static QByteArray document(const HelperStatus& status) {
        return QByteArray::fromStdString(encodeHelperStatus(status));
    }
    /// Runs one status call that the helper answers with these bytes.
    std::optional<HelperStatus> fetch(const std::optional<QByteArray>& answer) {
        auto task = client->fetchStatus();
        helper.calls.back().replyStatus(answer);
        return QCoro::waitFor(std::move(task));
    }

    FakeSystemInformation machine;
    FakeScriptRunner runner;
    FakeHelper helper;
    std::unique_ptr<HelperClient> client;
};

TEST_F(HelperClientTest, DerivesItsStateFromTheTwoFiles) {
    EXPECT_EQ(client->state(), HelperState::installed);
    for (const QString& missing : {plist, executable}) {
        machine.files = {plist, executable};
        client->refreshInstallState();
        auto call = client->releaseControl();
        EXPECT_EQ(helper.connectionsOpen, 1);
        machine.files.remove(missing);
        client->refreshInstallState();
        EXPECT_EQ(client->state(), HelperState::notInstalled);
        EXPECT_EQ(helper.connectionsOpen, 0);
        QCoro::waitFor(std::move(call));
    }
    const int made = helper.connectionsMade;
    EXPECT_EQ(QCoro::waitFor(client->setTargets({1.0})), std::nullopt);
    EXPECT_EQ(QCoro::waitFor(client->fetchStatus()), std::nullopt);
    EXPECT_EQ(helper.connectionsMade, made);
}

TEST_F(HelperClientTest, AnswersOnceByReplyTimeOutOrDestruction) {
    // By reply, from another thread.
    auto replied = client->setTargets({1200, 1300});
    EXPECT_EQ(helper.calls.back().targets, Targets({1200, 1300}));
    std::thread([reply = helper.calls.back().replyTargets] { reply({1250, 1300}); }).join();
    EXPECT_EQ(QCoro::waitFor(std::move(replied)), Targets({1250, 1300}));

    // By time-out; the reply that comes late is dropped.
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(QCoro::waitFor(client->setTargets({1200})), std::nullopt);
    EXPECT_GE(timer.elapsed(), 59);
    helper.calls.back().replyTargets({1200});
    EXPECT_EQ(client->state(), HelperState::installed) << "silence is no connection error";

    // Calls overlap, and end with the client.
    auto first = client->setTargets({1});
    auto second = client->fetchStatus();
    const auto late = helper.calls.back().replyStatus;
    timer.start();
    client.reset();
    EXPECT_EQ(QCoro::waitFor(std::move(first)), std::nullopt);
    EXPECT_EQ(QCoro::waitFor(std::move(second)), std::nullopt);
    EXPECT_LT(timer.elapsed(), 50) << "not by their time-outs";
    late(QByteArray("{}"));

    // A reply that is on its way meets nobody.
    makeClient();
    auto third = client->fetchStatus();
    helper.calls.back().replyStatus(document({.version = "1.0.2"}));
    client.reset();
    EXPECT_EQ(QCoro::waitFor(std::move(third)), std::nullopt);
}

TEST_F(HelperClientTest, LosesOnlyTheConnectionThatWasInvalidated) {
    auto first = client->fetchStatus();
    const auto lost = helper.invalidationHandler;
    lost();
    QCoreApplication::processEvents();
    EXPECT_EQ(helper.connectionsOpen, 0);
    auto second = client->fetchStatus();
    lost();
    QCoreApplication::processEvents();
    EXPECT_EQ(helper.connectionsOpen, 1) << "the newer one";
    client.reset();
    helper.invalidationHandler();
    helper.calls.back().error(u"late"_s);
    QCoreApplication::processEvents();
    QCoro::waitFor(std::move(first));
    QCoro::waitFor(std::move(second));
}

TEST_F(HelperClientTest, IsUnreachableFromAConnectionErrorToTheNextStatus) {
    QSignalSpy changes(client.get(), &HelperControlling::stateChanged);
    auto call = client->setTargets({1200});
    QElapsedTimer timer;
    timer.start();
    helper.calls.back().error(u"gone"_s);
    EXPECT_EQ(QCoro::waitFor(std::move(call)), std::nullopt);
    EXPECT_GE(timer.elapsed(), 50) << "the call itself waits for its time-out";
    EXPECT_EQ(client->state(), HelperState::unreachable);
    EXPECT_TRUE(client->isInstalled());

    client->refreshInstallState();
    EXPECT_EQ(fetch(std::nullopt), std::nullopt);
    EXPECT_EQ(fetch("garbage"), std::nullopt);
    EXPECT_EQ(client->state(), HelperState::unreachable);
    EXPECT_NE(fetch(document({.version = "1.0.2"})), std::nullopt);
    EXPECT_EQ(client->state(), HelperState::installed);
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(HelperClientTest, MovesItsStatusOnlyWithPhaseErrorAndVersion) {
    QSignalSpy changes(client.get(), &HelperControlling::lastStatusChanged);
    EXPECT_FALSE(client->isHelperOutdated());
    HelperStatus status{.version = "1.0.2", .hottestSensorCelsius = 50};
    EXPECT_EQ(fetch(document(status)), status);
    HelperStatus warmer = status;
    warmer.hottestSensorCelsius = 60;
    warmer.effectiveTargets = {1, 2};
    EXPECT_EQ(fetch(document(warmer)), warmer);
    EXPECT_EQ(client->lastStatus(), status);
    EXPECT_EQ(changes.size(), 1);
    warmer.lastError = "stuck";
    fetch(document(warmer));
    EXPECT_EQ(client->lastStatus(), warmer);
    warmer.version = "1.0";
    fetch(document(warmer));
    EXPECT_TRUE(client->isHelperOutdated());
    EXPECT_EQ(changes.size(), 3);
}

TEST_F(HelperClientTest, InstallsAndUninstallsThroughTheScriptRunner) {
    using Kind = InstallError::Kind;
    machine.files.clear();
    makeClient();
    for (const QString& missing : resources.keys()) {
        machine.resources = resources;
        machine.resources.remove(missing);
        EXPECT_EQ(QCoro::waitFor(client->install()).error().kind, Kind::resourcesMissing);
    }
    EXPECT_THAT(runner.scripts, IsEmpty());

    machine.resources = resources;
    // It may have come far: the last of its commands starts the job.
    runner.effect = [&] { machine.files = {plist, executable}; };
    runner.outcome = {ScriptOutcome::Kind::failed, u"User cancelled."_s};
    const auto failure = QCoro::waitFor(client->install());
    EXPECT_EQ(failure.error(), (InstallError{Kind::adminScriptFailed, u"User cancelled."_s}));
    runner.outcome = {ScriptOutcome::Kind::notStarted, u"no such file"_s};
    EXPECT_EQ(QCoro::waitFor(client->install()).error().kind, Kind::launchFailed);
    EXPECT_EQ(client->state(), HelperState::notInstalled);

    runner.outcome = {};
    EXPECT_TRUE(QCoro::waitFor(client->install()));
    EXPECT_EQ(client->state(), HelperState::installed);
    EXPECT_EQ(helper.methods(), QStringList{u"status"_s});
    helper.calls.back().error(u"gone"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(client->state(), HelperState::unreachable);
    EXPECT_TRUE(QCoro::waitFor(client->install()));
    EXPECT_EQ(client->state(), HelperState::installed) << "which it says itself";

    fetch(document({.version = "1.0.2"}));
    runner.effect = [] {};
    runner.outcome = {ScriptOutcome::Kind::failed, u"no"_s};
    QCoro::waitFor(client->uninstall());
    EXPECT_EQ(helper.calls.back().method, u"uninstall"_s);
    EXPECT_EQ(client->lastStatus(), std::nullopt);
    EXPECT_EQ(client->state(), HelperState::installed) << "the files are still there";
    EXPECT_EQ(helper.connectionsOpen, 0);
    runner.effect = [&] { machine.files.clear(); };
    QCoro::waitFor(client->uninstall());
    EXPECT_EQ(client->state(), HelperState::notInstalled);
}

TEST_F(HelperClientTest, APasswordThatNobodyTypesHoldsNothingUp) {
    machine.resources = resources;
    runner.isAsking = true;
    for (const bool isClientGone : {false, true}) {
        auto installation = client->install();
        auto targets = client->setTargets({1200});
        helper.calls.back().replyTargets({1200});
        EXPECT_EQ(QCoro::waitFor(std::move(targets)), Targets{1200}) << "behind the dialog";
        if (isClientGone)
            client.reset();
        runner.answer();
        EXPECT_TRUE(QCoro::waitFor(std::move(installation)));
    }
    makeClient();
    auto removal = client->uninstall();
    helper.calls.back().replyBool(true);
    QCoreApplication::processEvents();
    EXPECT_EQ(runner.scripts.size(), 3);
    client.reset();
    runner.answer();
    QCoro::waitFor(std::move(removal));
}

// What is done with an administrator's password.
TEST(HelperInstallation, WritesExactlyThisScript) {
    EXPECT_EQ(HelperInstallation::installScript(u"/A p/KestrowindHelper"_s, u"/it's.plist"_s),
              uR"(mkdir -p /Library/PrivilegedHelperTools
launchctl bootout system/app.kestrowind.helper 2>/dev/null || true
cp '/A p/KestrowindHelper' '/Library/PrivilegedHelperTools/app.kestrowind.helper'
chown root:wheel '/Library/PrivilegedHelperTools/app.kestrowind.helper'
chmod 755 '/Library/PrivilegedHelperTools/app.kestrowind.helper'
cp '/it'\''s.plist' '/Library/LaunchDaemons/app.kestrowind.helper.plist'
chown root:wheel '/Library/LaunchDaemons/app.kestrowind.helper.plist'
chmod 644 '/Library/LaunchDaemons/app.kestrowind.helper.plist'
launchctl bootstrap system '/Library/LaunchDaemons/app.kestrowind.helper.plist')"_s);
}

TEST(HelperInstallation, SaysTheSameToEveryShell) {
    // Commands that note the words they are given, and nobody else's.
    const QTemporaryDir commands;
    for (const auto& name :
         {u"mkdir"_s, u"launchctl"_s, u"cp"_s, u"chown"_s, u"chmod"_s, u"rm"_s}) {
        QFile command(commands.filePath(name));
        ASSERT_TRUE(command.open(QIODevice::WriteOnly));
        command.write("#!/bin/sh\nprintf '%s\\037' \"${0##*/}\" \"$@\"\nprintf '\\036'\n");
        command.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QString program = u"/ä€𝄞\n\t"_s;
    for (char16_t character = u' '; character <= u'~'; ++character)
        program += QChar(character);
    const QString job = u"/$(id) `id` \\' \"${HOME}\" 'Fan\\\\"_s;
    const QList<QStringList> expected{
        {u"mkdir"_s, u"-p"_s, u"/Library/PrivilegedHelperTools"_s},
        {u"launchctl"_s, u"bootout"_s, u"system/app.kestrowind.helper"_s},
        {u"cp"_s, program, executable},
        {u"chown"_s, u"root:wheel"_s, executable},
        {u"chmod"_s, u"755"_s, executable},
        {u"cp"_s, job, plist},
        {u"chown"_s, u"root:wheel"_s, plist},
        {u"chmod"_s, u"644"_s, plist},
        {u"launchctl"_s, u"bootstrap"_s, u"system"_s, plist},
        {u"launchctl"_s, u"bootout"_s, u"system/app.kestrowind.helper"_s},
        {u"rm"_s, u"-f"_s, plist, executable}};
    const QString script = HelperInstallation::installScript(program, job) + u'\n' +
                           HelperInstallation::removalScript();
    int shells = 0;
    for (QStringList shell : {QStringList{u"dash"_s},
                              {u"bash"_s, u"--posix"_s},
                              {u"mksh"_s},
                              {u"busybox"_s, u"sh"_s}}) {
        const QString name = shell.front();
        const QString path = QStandardPaths::findExecutable(shell.takeFirst());
        if (path.isEmpty())
            continue;
        QProcess process;
        QProcessEnvironment environment;
        environment.insert(u"PATH"_s, commands.path());
        process.setProcessEnvironment(environment);
        process.start(path, shell + QStringList{u"-c"_s, script});
        ASSERT_TRUE(process.waitForFinished()) << name.toStdString();
        QList<QStringList> said;
        for (const QString& words :
             QString::fromUtf8(process.readAll()).split(u'\036', Qt::SkipEmptyParts))
            said.append(words.chopped(1).split(u'\037'));
        EXPECT_EQ(said, expected) << name.toStdString();
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        ++shells;
    }
    EXPECT_GE(shells, 2) << "of those every system has";
}

} // namespace
} // namespace kestrowind
