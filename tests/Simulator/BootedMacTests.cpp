#include "Simulator/BootedMac.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

TEST(BootedMac, RunsACommandInsideAndEndsLikeIt) {
    Outcome outcome = runSimulator(
        {u"--"_s, u"sh"_s, u"-c"_s, u"cat $KESTROWIND_SIMULATED_MAC/run/system.json"_s});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("hw.model"));
    EXPECT_EQ(runSimulator({u"--"_s, u"sh"_s, u"-c"_s, u"exit 7"_s}).status, 7);
    EXPECT_EQ(runSimulator({u"--"_s, u"sh"_s, u"-c"_s, u"kill -9 $$"_s}).status, 128 + SIGKILL);
    outcome = runSimulator({u"--"_s, u"no-such-program"_s});
    EXPECT_EQ(outcome.status, 127);
    EXPECT_THAT(outcome.errors, HasSubstr("cannot run no-such-program: No such file"));
}

TEST(BootedMac, SaysWhyItCannotBoot) {
    const BootedMac other({});
    ASSERT_TRUE(other.isUp());
    const auto otherRoot = QString::fromStdString(other.root().string());
    const QTemporaryDir folders;
    const auto folder = [&folders](const QString& name, mode_t mode) {
        const QString path = folders.filePath(name);
        QDir().mkpath(path);
        ::chmod(qPrintable(path), mode);
        return path;
    };
    constexpr mode_t open = 0777;
    QDir().mkpath(folders.filePath(u"planted/run"_s));
    // Only the superuser has files of others.
    const bool canGiveAway = ::getuid() == 0;
    if (canGiveAway)
        ::lchown(qPrintable(folders.filePath(u"planted/run"_s)), 1, 1);
    QDir().mkpath(folders.filePath(u"linked/run"_s));
    QFile::link(u"/dev/null"_s, folders.filePath(u"linked/run/system.json"_s));
    struct Case {
        QStringList arguments;
        const char* message;
    };
    for (const auto& [arguments, message] : {
             Case{{u"--bogus"_s}, "Unknown option 'bogus'"},
             Case{{u"--profile"_s, u"nothing"_s}, "profile nothing: neither a file nor one of"},
             Case{{u"--load"_s, u"nan%"_s}, "\"nan%\" is no load"},
             Case{{u"--root"_s, u"/proc/none"_s}, "cannot create /proc/none"},
             Case{{u"--root"_s, u"/tmp/"_s + QString(90, u'x')}, "too long for a socket"},
             Case{{u"--root"_s, folders.filePath(u"a:b"_s)}, "a colon, which"},
             Case{{u"--root"_s, folder(u"open"_s, open)}, "open is writable by other users"},
             Case{{u"--root"_s, folder(u"open/above"_s, S_IRWXU)}, "open is writable by other"},
             Case{{u"--root"_s, folders.filePath(u"planted"_s)}, "run belongs to another user"},
             Case{{u"--root"_s, folders.filePath(u"linked"_s)}, "system.json is a link"},
             Case{{u"--root"_s, folders.path()}, "holds other files than a machine's"},
             Case{{u"--root"_s, otherRoot + u"/run/../"_s}, "a machine is already running in"},
         }) {
        if (std::string_view(message).contains("belongs") && !canGiveAway)
            continue;
        const Outcome outcome = runSimulator(arguments + QStringList{u"--"_s, u"true"_s});
        EXPECT_EQ(outcome.status, 2) << message;
        EXPECT_THAT(outcome.errors, HasSubstr(message));
    }
}

TEST(BootedMac, TakesItsHelperWithItWhenItIsKilledAndLeavesARootThatCanBeTakenOver) {
    BootedMac mac({u"--installed"_s});
    ASSERT_TRUE(mac.isUp());
    HelperCaller caller(mac, u"survivor"_s);
    ASSERT_EQ(caller.status().at("phase"), "idle");
    mac.process().kill();
    mac.process().waitForFinished();
    EXPECT_TRUE(waitUntil([&caller] { return !caller.isConnected(); }));
    const auto root = QString::fromStdString(mac.root().string());
    EXPECT_EQ(runSimulator({u"--root"_s, root, u"--"_s, u"true"_s}).status, 0);
}

TEST(BootedMac, PassesSignalsOnAndShutsDownInGoodOrder) {
    BootedMac mac({u"--installed"_s, u"--"_s, u"sh"_s, u"-c"_s,
                   u"trap 'exit 9' TERM; while :; do sleep 0.01; done"_s});
    ASSERT_TRUE(mac.isUp());
    HelperCaller caller(mac, u"bystander"_s);
    ASSERT_EQ(caller.status().at("phase"), "idle");
    const auto helper = mac.status().at("helper").at("pid").get<pid_t>();
    mac.process().terminate();
    ASSERT_TRUE(mac.process().waitForFinished());
    EXPECT_EQ(mac.process().exitCode(), 9);
    EXPECT_NE(::kill(helper, 0), 0) << "the helper has ended";
    EXPECT_FALSE(std::filesystem::exists(SimulatedMac::smcSocket(mac.root())));
    EXPECT_FALSE(std::filesystem::exists(SimulatedMac::controlSocket(mac.root())));
}

TEST_F(HeldFan, IsTheSystemsAgainAsSoonAsItsHolderIsGone) {
    {
        HelperCaller visitor(mac, u"visitor"_s);
        EXPECT_EQ(visitor.status().at("phase"), "controlling");
    }
    EXPECT_EQ(holder.status().at("phase"), "controlling") << "a visitor's end changes nothing";
    EXPECT_EQ(smc->readUInt8("F0md"), 1);

    holder.hangUp();
    QElapsedTimer sinceHangUp;
    sinceHangUp.start();
    EXPECT_TRUE(waitUntil([this] { return smc->readUInt8("F0md") == 0; }));
    EXPECT_LT(sinceHangUp.elapsed(), 500) << "far before the heartbeat time is over";
}

TEST_F(HeldFan, IsHandedBackByTheHelperThatFollowsAKilledOne) {
    EXPECT_EQ(mac.status().at("helper").at("starts"), 1);
    ASSERT_EQ(mac.control("helper kill").status, 0);
    EXPECT_EQ(holder.call(u"Status"_s).type(), QDBusMessage::ErrorMessage);
    holder.hangUp();
    EXPECT_TRUE(waitUntil([this] { return smc->readUInt8("F0md") == 0; }))
        << "though nobody asks for the helper any more";
    EXPECT_EQ(mac.status().at("helper").at("starts"), 2);
    EXPECT_EQ(mac.status().at("helper").at("lastExit"), "killed by signal 9");

    HelperCaller second(mac, u"second"_s);
    EXPECT_EQ(second.call(u"ShutDown"_s).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(waitUntil([this] { return mac.status().at("helper").at("pid").is_null(); }));
    EXPECT_EQ(mac.status().at("helper").at("lastExit"), "exited with status 0");
    HelperCaller third(mac, u"third"_s);
    EXPECT_EQ(third.status().at("phase"), "idle") << "it ended well, and comes back when asked for";
}

TEST_F(HeldFan, IsHandedBackThoughItsHelperHangs) {
    ASSERT_EQ(mac.control("helper hang").status, 0);
    EXPECT_EQ(holder.call(u"Status"_s, {}, 7'000).type(), QDBusMessage::ErrorMessage);
    EXPECT_TRUE(waitUntil([this] { return smc->readUInt8("F0md") == 0; }));
    EXPECT_EQ(mac.status().at("helper").at("lastExit"), "killed by signal 14");
}

TEST_F(HeldFan, IsLostToAHelperThatIsNoProgramWhoseCallersAreHungUpOn) {
    const auto program = SimulatedMac::systemPath(mac.root(), HelperConstants::helperInstallPath);
    std::filesystem::remove(program);
    std::ofstream(program) << "touch \"$KESTROWIND_SIMULATED_MAC/ran\"\n";
    std::filesystem::permissions(program, std::filesystem::perms{0755});
    ASSERT_EQ(mac.control("helper kill").status, 0);
    for (const QString& name : {u"first"_s, u"second"_s}) {
        HelperCaller caller(mac, name);
        EXPECT_TRUE(waitUntil([&caller] { return !caller.isConnected(); }));
    }
    EXPECT_THAT(mac.status().at("helper").at("lastExit"), HasSubstr("Exec format error"));
    EXPECT_FALSE(std::filesystem::exists(mac.root() / "ran")) << "and no shell runs its text";
}

TEST_F(HeldFan, IsNotMovedByCallsThatMakeNoSense) {
    struct Case {
        QString method;
        QVariantList arguments;
        std::string error;
    };
    const std::string invalid = "org.freedesktop.DBus.Error.InvalidArgs";
    for (const auto& [method, arguments, error] :
         {Case{u"SetTargets"_s, {QVariant::fromValue(QList<double>{2000, 2000})}, invalid},
          Case{u"SetTargets"_s, {u"fast"_s}, invalid}, Case{u"SetTargets"_s, {}, invalid},
          Case{u"Status"_s, {true}, invalid},
          Case{u"Explode"_s, {}, "org.freedesktop.DBus.Error.UnknownMethod"}})
        EXPECT_EQ(holder.call(method, arguments).errorName().toStdString(), error);
    EXPECT_EQ(smc->readFloat("F0Tg"), 2500.0F);
}

TEST(BootedMac, HasAHelperThatMisbehavesOnCommandAndIsUninstalled) {
    const BootedMac mac({u"--installed"_s});
    ASSERT_TRUE(mac.isUp());
    HelperCaller caller(mac, u"caller"_s);
    ASSERT_EQ(mac.control("helper version 9.9").status, 0);
    EXPECT_EQ(caller.status().at("version"), "9.9");
    ASSERT_EQ(mac.control({u"helper"_s, u"fail"_s, u"stuck \"motor\""_s}).status, 0);
    EXPECT_EQ(caller.status().at("phase"), "failed");
    EXPECT_EQ(caller.status().at("lastError"), "stuck \"motor\"");

    const QDBusReply<bool> reply = caller.call(u"Uninstall"_s);
    EXPECT_TRUE(reply.isValid() && reply.value());
    for (const char* path : {HelperConstants::helperInstallPath, HelperConstants::daemonPlistPath})
        EXPECT_FALSE(std::filesystem::exists(SimulatedMac::systemPath(mac.root(), path)));
    caller.hangUp();
    EXPECT_TRUE(waitUntil([&mac] { return mac.status().at("helper").at("pid").is_null(); }));
    HelperCaller latecomer(mac, u"latecomer"_s);
    EXPECT_EQ(latecomer.call(u"Status"_s, {}, 3'000).type(), QDBusMessage::ErrorMessage);
}

TEST(Control, BreaksAndMendsTheMachineWhileItRuns) {
    const BootedMac mac({});
    ASSERT_TRUE(mac.isUp());
    const auto open = [&mac] {
        return SMCConnection::open(std::make_shared<SMCLink>(SimulatedMac::smcSocket(mac.root())));
    };
    const auto smc = open().value();
    const std::pair<const char*, const char*> rows[] = {
        {"key F0Ac fail", "SMC key F0Ac error (result 133)"},
        {"key F0Ac timeout", "SMC call failed (0xe00002d6)"},
        {"key F0Ac remove", "SMC key F0Ac error (result 132)"},
        {"key F0Ac type fpe2", "SMC key F0Ac is type fpe2, expected flt "},
    };
    for (const auto& [command, error] : rows) {
        EXPECT_EQ(mac.control(command).status, 0);
        const auto fresh = open().value();
        const auto read = fresh->readFloat("F0Ac");
        EXPECT_EQ(read ? "" : description(read.error()), error);
        EXPECT_EQ(mac.control("key F0Ac ok").status, 0);
        EXPECT_TRUE(fresh->readUInt8("FNum"));
    }
    EXPECT_EQ(mac.control("key Tp01 value 00004842").status, 0);
    EXPECT_EQ(smc->readFloat("Tp01"), 50.0F);
    EXPECT_EQ(mac.control("load 100%").status, 0);
    EXPECT_TRUE(waitUntil([&smc] { return smc->readFloat("Tp05").value() > 45; }));
    EXPECT_EQ(smc->readFloat("Tp01"), 50.0F) << "held against the hardware";
    EXPECT_EQ(mac.control("service none").status, 0);
    EXPECT_EQ(description(open().error()), "AppleSMC service not found");
    EXPECT_EQ(mac.control("service second").status, 0);
    EXPECT_EQ(mac.control("open-result 0xe00002c5").status, 0);
    EXPECT_EQ(description(open().error()), "IOServiceOpen failed (0xe00002c5)");
}

TEST(Control, SaysWhatIsWrongWithACommand) {
    const BootedMac mac({});
    ASSERT_TRUE(mac.isUp());
    const std::pair<const char*, const char*> rows[] = {
        {"", "unknown command"},
        {"explode", "unknown command: explode"},
        {"service third", "unknown command: service third\n  service both|second|none"},
        {"status now", "unknown command: status now\n  status"},
        {"key Tp0 fail", "is no key name"},
        {"key Zz99 fail", "the machine has no key Zz99"},
        {"key Tp01 value 4", "not pairs of hexadecimal digits"},
        {"open-result 0x1ffffffff", "is no 32-bit code"},
        {"helper late -5", "is no number of milliseconds"},
        {"helper kill", "the helper is not running"},
    };
    for (const auto& [command, message] : rows) {
        const Outcome outcome = mac.control(command);
        EXPECT_EQ(outcome.status, 1) << message;
        EXPECT_THAT(outcome.errors, HasSubstr(message));
    }
    const Outcome nowhere = runSimulator({u"ctl"_s, u"--root"_s, u"/nowhere"_s, u"status"_s});
    EXPECT_EQ(nowhere.status, 1);
    EXPECT_THAT(nowhere.errors, HasSubstr("no machine is running in /nowhere"));
}

} // namespace
} // namespace kestrowind

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
