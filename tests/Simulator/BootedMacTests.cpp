#include "Simulator/BootedMac.h"

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
        {u"--"_s, u"sh"_s, u"-c"_s, u"cat $KESTROWIND_SIMULATED_MAC/run/system.json; exit 7"_s});
    EXPECT_EQ(outcome.status, 7);
    EXPECT_THAT(outcome.output, HasSubstr("hw.model"));
    EXPECT_EQ(runSimulator({u"--"_s, u"sh"_s, u"-c"_s, u"kill -9 $$"_s}).status, 128 + SIGKILL);
    outcome = runSimulator({u"--"_s, u"no-such-program"_s});
    EXPECT_EQ(outcome.status, 127);
    EXPECT_THAT(outcome.errors, HasSubstr("cannot run no-such-program: No such file"));
}

TEST(BootedMac, SaysWhyItCannotBoot) {
    const BootedMac other({});
    const auto otherRoot = QString::fromStdString(other.root().string());
    const QTemporaryDir folders;
    const auto folder = [&folders](const QString& name, mode_t mode) {
        const QString path = folders.filePath(name);
        QDir().mkpath(path);
        ::chmod(qPrintable(path), mode);
        return path;
    };
    constexpr mode_t open = 0777;
    // Only the superuser can give it away.
    const bool isGivenAway = ::lchown(qPrintable(folder(u"planted/run"_s, open)), 1, 1) == 0;
    QDir().mkpath(folders.filePath(u"linked/run"_s));
    QFile::link(u"/dev/null"_s, folders.filePath(u"linked/run/system.json"_s));
    const std::pair<QStringList, const char*> rows[] = {
        {{u"--bogus"_s}, "Unknown option 'bogus'"},
        {{u"--profile"_s, u"nothing"_s}, "profile nothing: neither a file nor one of"},
        {{u"--load"_s, u"nan%"_s}, "\"nan%\" is no load"},
        {{u"--root"_s, u"/proc/none"_s}, "cannot create /proc/none"},
        {{u"--root"_s, u"/tmp/"_s + QString(90, u'x')}, "too long for a socket"},
        {{u"--root"_s, folders.filePath(u"a:b"_s)}, "a colon, which"},
        {{u"--root"_s, folder(u"open"_s, open)}, "open is writable by other users"},
        {{u"--root"_s, folder(u"open/above"_s, S_IRWXU)}, "open is writable by other"},
        {{u"--root"_s, folders.filePath(u"planted"_s)},
         isGivenAway ? "run belongs to another user" : "run is writable by other users"},
        {{u"--root"_s, folders.filePath(u"linked"_s)}, "system.json is a link"},
        {{u"--root"_s, folders.path()}, "holds other files than a machine's"},
        {{u"--root"_s, otherRoot + u"/run/../"_s}, "a machine is already running in"},
    };
    for (const auto& [arguments, message] : rows) {
        const Outcome outcome = runSimulator(arguments + QStringList{u"--"_s, u"true"_s});
        EXPECT_EQ(outcome.status, 2) << message;
        EXPECT_THAT(outcome.errors, HasSubstr(message));
    }
}

TEST(BootedMac, TakesItsHelperWithItWhenItIsKilledAndLeavesARootThatCanBeTakenOver) {
    BootedMac mac({u"--installed"_s});
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

TEST_F(HeldFan, IsHandedBackByTheHelperThatFollowsAKilledOne) {
    ASSERT_EQ(mac.control("helper kill").status, 0);
    EXPECT_EQ(holder.call(u"Status"_s).type(), QDBusMessage::ErrorMessage);
    holder.hangUp();
    EXPECT_TRUE(waitUntil([this] { return smc->readUInt8("F0md") == 0; }))
        << "though nobody asks for the helper any more";

    HelperCaller second(mac, u"second"_s);
    EXPECT_EQ(second.call(u"ShutDown"_s).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(waitUntil([this] { return mac.status().at("helper").at("pid").is_null(); }));
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
    const std::tuple<QString, QVariantList, QString> rows[] = {
        {u"SetTargets"_s, {QVariant::fromValue(QList<double>{2000, 2000})}, u"InvalidArgs"_s},
        {u"SetTargets"_s, {u"fast"_s}, u"InvalidArgs"_s},
        {u"SetTargets"_s, {}, u"InvalidArgs"_s},
        {u"Status"_s, {true}, u"InvalidArgs"_s},
        {u"Explode"_s, {}, u"UnknownMethod"_s},
    };
    for (const auto& [method, arguments, error] : rows)
        EXPECT_EQ(holder.call(method, arguments).errorName(),
                  u"org.freedesktop.DBus.Error."_s + error);
    EXPECT_EQ(smc->readFloat("F0Tg"), 2500.0F);
}

TEST(BootedMac, HasAHelperThatMisbehavesOnCommandAndIsUninstalled) {
    const BootedMac mac({u"--installed"_s});
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
    const auto smc = mac.openSMC().value();
    const std::pair<const char*, const char*> rows[] = {
        {"key F0Ac fail", "SMC key F0Ac error (result 133)"},
        {"key F0Ac timeout", "SMC call failed (0xe00002d6)"},
        {"key F0Ac remove", "SMC key F0Ac error (result 132)"},
        {"key F0Ac type fpe2", "SMC key F0Ac is type fpe2, expected flt "},
    };
    for (const auto& [command, error] : rows) {
        EXPECT_EQ(mac.control(command).status, 0);
        const auto fresh = mac.openSMC().value();
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
    EXPECT_EQ(description(mac.openSMC().error()), "AppleSMC service not found");
    EXPECT_EQ(mac.control("service second").status, 0);
    EXPECT_EQ(mac.control("open-result 0xe00002c5").status, 0);
    EXPECT_EQ(description(mac.openSMC().error()), "IOServiceOpen failed (0xe00002c5)");
}

TEST(Control, SaysWhatIsWrongWithACommand) {
    const BootedMac mac({});
    const std::pair<const char*, const char*> rows[] = {
        {"explode", "unknown command: explode"},
        {"service third", "unknown command: service third\n  service both|second|none"},
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
