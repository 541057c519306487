#include "Simulator/BootedMac.h"

#include "Shared/SMCKit/SMCConnection.h"
#include "Simulator/Link/SMCLink.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

QVariant targets(const QList<double>& speeds) {
    return QVariant::fromValue(speeds);
}

TEST(BootedMac, RunsACommandInsideAndEndsLikeIt) {
    Outcome outcome = runSimulator(
        {u"--"_s, u"sh"_s, u"-c"_s, u"cat $KESTROWIND_SIMULATED_MAC/run/system.json"_s});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(nlohmann::json::parse(outcome.output),
              (nlohmann::json{{"hw.model", "MacBookPro18,3"},
                              {"machdep.cpu.brand_string", "Apple M1 Pro"},
                              {"osVersion", "Version 15.5 (Build 24F74)"}}));
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
    struct Case {
        QStringList arguments;
        const char* message;
    };
    for (const auto& [arguments, message] : {
             Case{{u"--bogus"_s}, "Unknown option 'bogus'"},
             Case{{u"--profile"_s, u"nothing"_s}, "profile nothing: neither a file nor one of"},
             Case{{u"--load"_s, u"101%"_s}, "\"101%\" is no load"},
             Case{{u"--load"_s, u"nan%"_s}, "\"nan%\" is no load"},
             Case{{u"--root"_s, u"/proc/none"_s}, "cannot create /proc/none"},
             Case{{u"--root"_s, u"/tmp/"_s + QString(120, u'x')}, "too long for a socket"},
             Case{{u"--root"_s, otherRoot}, "a machine is already running in"},
         }) {
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

TEST(BootedMac, OffersItsSMCToManyClientsAndIsNotHurtByBadOnes) {
    const BootedMac mac({u"--profile"_s, u"large-2000-keys"_s});
    ASSERT_TRUE(mac.isUp());
    const auto path = SimulatedMac::smcSocket(mac.root());
    const auto first = SMCConnection::open(std::make_shared<SMCLink>(path)).value();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.string().copy(address.sun_path, sizeof address.sun_path - 1);
    for (const std::size_t size : {1U, 123U, 125U, 4096U}) {
        const int bad = ::socket(AF_UNIX, SOCK_SEQPACKET, 0);
        ASSERT_EQ(::connect(bad, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        const std::string nonsense(size, 'x');
        ::send(bad, nonsense.data(), size, MSG_NOSIGNAL);
        char reply = 0;
        EXPECT_EQ(::recv(bad, &reply, 1, 0), 0) << "hung up on after " << size << " bytes";
        ::close(bad);
    }
    const auto second = SMCConnection::open(std::make_shared<SMCLink>(path)).value();
    for (const auto* connection : {&first, &second})
        EXPECT_EQ((*connection)->keyCount(), 2000U);
}

TEST(BootedMac, StartsTheHelperForWhoeverAsksAndAgainAfterItDied) {
    const BootedMac mac({u"--installed"_s});
    ASSERT_TRUE(mac.isUp());
    ASSERT_TRUE(waitUntil([&mac] { return mac.status().at("helper").at("starts") == 1; }))
        << "it runs from its bootstrap on";
    {
        HelperCaller caller(mac, u"first"_s);
        EXPECT_EQ(caller.status().at("version"), HelperConstants::helperVersion);
        EXPECT_EQ(mac.status().at("helper").at("starts"), 1);
        ASSERT_EQ(mac.control({u"helper"_s, u"kill"_s}).status, 0);
        EXPECT_EQ(caller.call(u"Status"_s).type(), QDBusMessage::ErrorMessage);
    }
    HelperCaller caller(mac, u"second"_s);
    EXPECT_EQ(caller.status().at("phase"), "idle");
    const auto helper = mac.status().at("helper");
    EXPECT_EQ(helper.at("starts"), 2);
    EXPECT_EQ(helper.at("lastExit"), "killed by signal 9");

    EXPECT_EQ(caller.call(u"ShutDown"_s).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(waitUntil([&mac] { return mac.status().at("helper").at("pid").is_null(); }));
    EXPECT_EQ(mac.status().at("helper").at("lastExit"), "exited with status 0");
    HelperCaller third(mac, u"third"_s);
    EXPECT_EQ(third.status().at("phase"), "idle") << "it ended well, and comes back when asked for";
    EXPECT_EQ(mac.status().at("helper").at("starts"), 3);
}

TEST(BootedMac, StartsAKilledHelperAtOnceSoThatItHandsTheFansBack) {
    const BootedMac mac({u"--installed"_s, u"--profile"_s, u"desktop-1fan"_s});
    ASSERT_TRUE(mac.isUp());
    const auto smc =
        SMCConnection::open(std::make_shared<SMCLink>(SimulatedMac::smcSocket(mac.root()))).value();
    {
        HelperCaller holder(mac, u"lonely"_s);
        const QDBusReply<QList<double>> applied = holder.call(u"SetTargets"_s, {targets({2500})});
        ASSERT_TRUE(applied.isValid()) << applied.error().message().toStdString();
        ASSERT_EQ(smc->readUInt8("F0md"), 1);
        ASSERT_EQ(mac.control({u"helper"_s, u"kill"_s}).status, 0);
    }
    EXPECT_TRUE(waitUntil([&smc] { return smc->readUInt8("F0md") == 0; }))
        << "though nobody asks for the helper any more";
}

TEST(BootedMac, GivesTheFansBackAsSoonAsTheirHolderIsGone) {
    const BootedMac mac({u"--installed"_s, u"--profile"_s, u"desktop-1fan"_s});
    ASSERT_TRUE(mac.isUp());
    const auto smc =
        SMCConnection::open(std::make_shared<SMCLink>(SimulatedMac::smcSocket(mac.root()))).value();
    HelperCaller holder(mac, u"holder"_s);
    const QDBusReply<QList<double>> applied = holder.call(u"SetTargets"_s, {targets({2500})});
    ASSERT_TRUE(applied.isValid()) << applied.error().message().toStdString();
    EXPECT_EQ(applied.value(), QList<double>{2500});
    EXPECT_EQ(smc->readUInt8("F0md"), 1);
    {
        HelperCaller visitor(mac, u"visitor"_s);
        EXPECT_EQ(visitor.status().at("phase"), "controlling");
    }
    EXPECT_EQ(holder.status().at("phase"), "controlling") << "a visitor's end changes nothing";
    EXPECT_EQ(smc->readUInt8("F0md"), 1);

    holder.hangUp();
    QElapsedTimer sinceHangUp;
    sinceHangUp.start();
    EXPECT_TRUE(waitUntil([&smc] { return smc->readUInt8("F0md") == 0; }));
    EXPECT_LT(sinceHangUp.elapsed(), 500) << "far before the heartbeat time is over";
    RecordProperty("milliseconds", static_cast<int>(sinceHangUp.elapsed()));
}

TEST(BootedMac, RefusesCallsThatMakeNoSense) {
    const BootedMac mac({u"--installed"_s});
    ASSERT_TRUE(mac.isUp());
    HelperCaller caller(mac, u"caller"_s);
    struct Case {
        QString method;
        QVariantList arguments;
        std::string error;
    };
    const std::string invalid = "org.freedesktop.DBus.Error.InvalidArgs";
    for (const auto& [method, arguments, error] :
         {Case{u"SetTargets"_s, {targets({2000})}, invalid},
          Case{u"SetTargets"_s, {targets({2000, -5})}, invalid},
          Case{u"SetTargets"_s, {u"fast"_s}, invalid}, Case{u"SetTargets"_s, {}, invalid},
          Case{u"Status"_s, {true}, invalid},
          Case{u"Explode"_s, {}, "org.freedesktop.DBus.Error.UnknownMethod"}})
        EXPECT_EQ(caller.call(method, arguments).errorName().toStdString(), error);
    EXPECT_EQ(caller.status().at("phase"), "idle");
}

TEST(BootedMac, HasAHelperThatMisbehavesOnCommand) {
    const BootedMac mac({u"--installed"_s});
    ASSERT_TRUE(mac.isUp());
    HelperCaller caller(mac, u"victim"_s);
    const auto behave = [&mac](const QStringList& words) {
        ASSERT_EQ(mac.control(QStringList{u"helper"_s} + words).status, 0);
    };
    behave({u"version"_s, u"9.9"_s});
    EXPECT_EQ(caller.status().at("version"), "9.9");
    behave({u"fail"_s, u"stuck \"motor\""_s});
    EXPECT_EQ(caller.status().at("phase"), "failed");
    EXPECT_EQ(caller.status().at("lastError"), "stuck \"motor\"");
    behave({u"garbage"_s});
    EXPECT_TRUE(caller.status().is_discarded());
    EXPECT_EQ(caller.call(u"SetTargets"_s, {targets({2000, 2000})}).signature(), u"s"_s);
    behave({u"late"_s, u"300"_s});
    QElapsedTimer sinceCall;
    sinceCall.start();
    EXPECT_EQ(caller.call(u"Status"_s).type(), QDBusMessage::ReplyMessage);
    EXPECT_GE(sinceCall.elapsed(), 300);
    behave({u"silent"_s});
    EXPECT_EQ(caller.call(u"Status"_s, {}, 300).errorName(),
              u"org.freedesktop.DBus.Error.NoReply"_s);
    behave({u"normal"_s});
    behave({u"stop"_s});
    EXPECT_EQ(caller.call(u"Status"_s, {}, 300).type(), QDBusMessage::ErrorMessage);
    behave({u"continue"_s});
    EXPECT_EQ(caller.status().at("version"), HelperConstants::helperVersion);
}

TEST(BootedMac, UninstallsItsHelperAndTakesItOnAgain) {
    const BootedMac mac({u"--installed"_s});
    ASSERT_TRUE(mac.isUp());
    const auto program = SimulatedMac::systemPath(mac.root(), HelperConstants::helperInstallPath);
    const auto job = SimulatedMac::systemPath(mac.root(), HelperConstants::daemonPlistPath);
    const auto kept = std::filesystem::path(mac.root()) / "kept.plist";
    std::filesystem::copy_file(job, kept);
    {
        HelperCaller caller(mac, u"remover"_s);
        const QDBusReply<bool> reply = caller.call(u"Uninstall"_s);
        EXPECT_TRUE(reply.isValid() && reply.value());
    }
    EXPECT_FALSE(std::filesystem::exists(program));
    EXPECT_FALSE(std::filesystem::exists(job));
    EXPECT_TRUE(waitUntil([&mac] { return mac.status().at("helper").at("pid").is_null(); }));
    {
        HelperCaller caller(mac, u"latecomer"_s);
        EXPECT_EQ(caller.call(u"Status"_s, {}, 3'000).type(), QDBusMessage::ErrorMessage);
    }
    EXPECT_THAT(mac.status().at("helper").at("lastExit").get<std::string>(),
                HasSubstr("No such file"));

    const auto label = QString::fromLatin1(HelperConstants::machServiceName);
    EXPECT_EQ(mac.control({u"bootout"_s, label}).status, 0);
    EXPECT_THAT(mac.control({u"bootout"_s, label}).errors,
                HasSubstr("Boot-out failed: 3: No such process"));
    const auto keptPath = QString::fromStdString(kept.string());
    EXPECT_EQ(mac.control({u"bootstrap"_s, keptPath}).status, 0);
    for (const QString& path : {keptPath, u"/no/such.plist"_s})
        EXPECT_THAT(mac.control({u"bootstrap"_s, path}).errors,
                    HasSubstr("Bootstrap failed: 5: Input/output error"));
}

TEST(Control, BreaksAndMendsTheMachineWhileItRuns) {
    const BootedMac mac({});
    ASSERT_TRUE(mac.isUp());
    const auto open = [&mac] {
        return SMCConnection::open(std::make_shared<SMCLink>(SimulatedMac::smcSocket(mac.root())));
    };
    const auto smc = open().value();
    struct Case {
        QStringList words;
        const char* error; ///< of reading F0Ac afterwards
    };
    for (const auto& [words, error] : {
             Case{{u"fail"_s}, "SMC key F0Ac error (result 133)"},
             Case{{u"timeout"_s}, "SMC call failed (0xe00002d6)"},
             Case{{u"remove"_s}, "SMC key F0Ac error (result 132)"},
             Case{{u"type"_s, u"fpe2"_s}, "SMC key F0Ac is type fpe2, expected flt "},
         }) {
        EXPECT_EQ(mac.control(QStringList{u"key"_s, u"F0Ac"_s} + words).status, 0);
        const auto fresh = open().value();
        const auto read = fresh->readFloat("F0Ac");
        EXPECT_EQ(read ? "" : description(read.error()), error);
        EXPECT_EQ(mac.control({u"key"_s, u"F0Ac"_s, u"ok"_s}).status, 0);
        EXPECT_TRUE(fresh->readUInt8("FNum"));
    }
    EXPECT_EQ(mac.control({u"key"_s, u"Tp01"_s, u"value"_s, u"00004842"_s}).status, 0);
    EXPECT_EQ(smc->readFloat("Tp01"), 50.0F);
    EXPECT_EQ(mac.control({u"load"_s, u"100%"_s}).status, 0);
    EXPECT_TRUE(waitUntil([&smc] { return smc->readFloat("Tp05").value() > 45; }));
    EXPECT_EQ(smc->readFloat("Tp01"), 50.0F) << "held against the hardware";
    EXPECT_EQ(mac.control({u"service"_s, u"none"_s}).status, 0);
    EXPECT_EQ(description(open().error()), "AppleSMC service not found");
    EXPECT_EQ(mac.control({u"service"_s, u"second"_s}).status, 0);
    EXPECT_EQ(mac.control({u"open-result"_s, u"0xe00002c5"_s}).status, 0);
    EXPECT_EQ(description(open().error()), "IOServiceOpen failed (0xe00002c5)");
}

TEST(Control, SaysWhatIsWrongWithACommand) {
    const BootedMac mac({});
    ASSERT_TRUE(mac.isUp());
    struct Case {
        QStringList words;
        const char* message;
    };
    for (const auto& [words, message] : {
             Case{{}, "what is to be done?"},
             Case{{u"explode"_s}, "unknown command"},
             Case{{u"status"_s, u"now"_s}, "wrong number of arguments"},
             Case{{u"load"_s, u"-1%"_s}, "is no load"},
             Case{{u"key"_s, u"Tp0"_s, u"fail"_s}, "is no key name"},
             Case{{u"key"_s, u"Zz99"_s, u"fail"_s}, "the machine has no key Zz99"},
             Case{{u"key"_s, u"Tp01"_s, u"value"_s, u"4"_s}, "not pairs of hexadecimal digits"},
             Case{{u"key"_s, u"Tp01"_s, u"value"_s}, "cannot be done to a key"},
             Case{{u"service"_s, u"all"_s}, "is none of both, second, none"},
             Case{{u"open-result"_s, u"0x1ffffffff"_s}, "is no 32-bit code"},
             Case{{u"helper"_s, u"late"_s, u"-5"_s}, "no behaviour of the helper"},
             Case{{u"helper"_s, u"kill"_s}, "the helper is not running"},
         }) {
        const Outcome outcome = mac.control(words);
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
