#include "Core/AppState.h"
#include "Core/HelperClient.h"
#include "Platform/AdminScriptRunner.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/SMCKit/FourCC.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/FakeSystemInformation.h"
#include "Support/FaultySMC.h"
#include "Support/QtPrinters.h"
#include "Support/ScriptedHelper.h"
#include "Support/TestDefaults.h"

#include <QAbstractEventDispatcher>
#include <QCoroTask>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTest>
#include <gtest/gtest.h>

// Everything between the SMC and the helper, with one thing broken at a time. Each case ends with
// the machine mended, control regained, and the fans handed back by quitting.

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Answer = ScriptedHelper::Answer;
using Method = ScriptedHelper::Method;

// In the relation that they have in the application: 2 seconds and 3.
constexpr auto interval = 6ms;
constexpr auto callTimeout = 9ms;
constexpr auto controlPatience = 30ms;
constexpr int limit = 4000; ///< milliseconds to wait for what must come

/// How long the event loop of this thread was kept from going round, at the longest.
class StallWatch {
public:
    StallWatch() {
        const auto* loop = QAbstractEventDispatcher::instance();
        QObject::connect(loop, &QAbstractEventDispatcher::awake, &m_context,
                         [this] { m_sinceAwake.start(); });
        QObject::connect(loop, &QAbstractEventDispatcher::aboutToBlock, &m_context, [this] {
            if (m_sinceAwake.isValid())
                m_longest = std::max(m_longest, m_sinceAwake.nsecsElapsed());
            m_sinceAwake.invalidate();
        });
    }
    [[nodiscard]] std::chrono::nanoseconds longest() const {
        return std::chrono::nanoseconds(m_longest);
    }

private:
    QObject m_context;
    QElapsedTimer m_sinceAwake;
    qint64 m_longest = 0;
};

/// The whole of the application but its windows, on a machine with two fans.
class RunningState {
public:
    RunningState() {
        information.files = {QString::fromLatin1(HelperConstants::daemonPlistPath),
                             QString::fromLatin1(HelperConstants::helperInstallPath)};
        smc->setByte("FNum", 2);
        for (const char* fan : {"F0", "F1"}) {
            for (const char* suffix : {"Ac", "Tg", "Mn"})
                smc->setFloat(std::string(fan) + suffix, 1200);
            smc->setFloat(std::string(fan) + "Mx", 6000);
            smc->setByte(std::string(fan) + "md", 0);
        }
        smc->setFloat("Tp01", 50);
        smc->setFloat("Tg01", 45);

        auto telemetry = std::make_unique<TelemetryStore>(*defaults, [this] { return kernel; });
        auto client = std::make_unique<HelperClient>(
            HelperClient::Environment{.makeConnection = helper.factory(),
                                      .information = information,
                                      .scriptRunner = scriptRunner,
                                      .callTimeout = callTimeout});
        auto presets = std::make_unique<PresetStore>(2, *defaults,
                                                     PresetStore::Storage{.folder = home.path()});
        auto engine = std::make_unique<ControlEngine>(
            *telemetry, *presets, *client, &std::chrono::system_clock::now, controlPatience);
        state = std::make_unique<AppState>(std::move(telemetry), std::move(client),
                                           std::move(presets), std::move(engine));
        // A demand of its own, since without a temperature no curve asks for anything.
        state->engine().setQuickBoostPercent(100);
        state->telemetry().onSample(state.get(), [this](const TelemetrySample&) {
            EXPECT_EQ(QThread::currentThread(), state->thread());
            ++samples;
        });
    }
    ~RunningState() { state.reset(); }
    RunningState(const RunningState&) = delete;
    RunningState& operator=(const RunningState&) = delete;

    void start() { state->telemetry().start(interval); }
    bool takesSamples(int count) {
        const int enough = samples + count;
        return QTest::qWaitFor([&] { return samples >= enough; }, limit);
    }
    [[nodiscard]] bool isInControl() const {
        return state->engine().isOverriding() && helper.isHolding &&
               helper.targets == std::vector<double>{6000, 6000} &&
               state->helper().state() == HelperState::installed;
    }
    bool regainsControl() {
        return QTest::qWaitFor([&] { return isInControl(); }, limit);
    }
    /// As the application quits; at most two calls may run out of time.
    void quit() {
        QElapsedTimer timer;
        timer.start();
        QCoro::waitFor(state->engine().shutDown());
        QCoro::waitFor(state->helper().shutDownDaemon());
        EXPECT_LT(timer.elapsed(), 500) << "quitting hangs";
        EXPECT_FALSE(state->engine().isOverriding());
        takesSamples(state->telemetry().latest() ? 2 : 0);
        EXPECT_FALSE(state->engine().isOverriding()) << "nothing takes the fans after that";
    }

    TestHome home;
    std::unique_ptr<UserDefaults> defaults = home.defaults();
    FakeSystemInformation information;
    ProcessScriptRunner scriptRunner{QString()};
    std::shared_ptr<SimulatedSMC> smc = std::make_shared<SimulatedSMC>();
    std::shared_ptr<FaultySMC> kernel = std::make_shared<FaultySMC>(smc);
    ScriptedHelper helper{callTimeout};
    int samples = 0;
    std::unique_ptr<AppState> state;
};

class FaultTest : public testing::Test {
protected:
    // Each broken call is logged, as it should be; here it is what was wanted.
    void SetUp() override { QLoggingCategory::setFilterRules(u"app.kestrowind.*=false"_s); }
    void TearDown() override { QLoggingCategory::setFilterRules({}); }

    /// On a busy computer any thread may be made to wait: only what stalls every time is a stall.
    static void expectNoStalls(const std::function<void()>& scenario) {
        std::chrono::nanoseconds shortest = 1h;
        for (int attempt = 0; attempt < 3 && shortest > 50ms; ++attempt) {
            const StallWatch watch;
            scenario();
            shortest = std::min(shortest, watch.longest());
            if (HasFailure())
                return;
        }
        EXPECT_LE(shortest, 50ms) << "the main thread was held up";
    }
};

TEST_F(FaultTest, EveryCallToTheSMCMayFailFromTheStartOrLater) {
    using Kind = FaultySMC::Kind;
    struct Call {
        const char* name;
        std::uint8_t command;
        std::optional<std::uint32_t> key = {};
    };
    const Call calls[] = {
        {"the number of keys", SMCCommand::readKey, smcFourCC("#KEY")},
        {"a key's name", SMCCommand::getKeyFromIndex},
        {"a key's description", SMCCommand::getKeyInfo},
        {"the number of fans", SMCCommand::readKey, smcFourCC("FNum")},
        {"a fan's speed", SMCCommand::readKey, smcFourCC("F1Ac")},
        {"any value", SMCCommand::readKey},
    };
    const auto check = [](const FaultySMC::Fault& fault, bool isFromTheStart) {
        RunningState mac;
        if (!isFromTheStart) {
            mac.start();
            ASSERT_TRUE(mac.regainsControl());
        }
        mac.kernel->setFault(fault);
        if (isFromTheStart)
            mac.start();
        EXPECT_TRUE(mac.takesSamples(4)) << "samples go on";
        mac.kernel->setFault({});
        // What is wrong with a description stays: it is asked for once, as long as it is answered.
        const bool isRemembered =
            isFromTheStart && fault.isForGood && fault.command == SMCCommand::getKeyInfo &&
            (fault.kind == Kind::answersZeros || fault.kind == Kind::answersNonsense);
        EXPECT_TRUE(isRemembered ? mac.takesSamples(1) : mac.regainsControl());
        EXPECT_FALSE(mac.helper.wasAskedNonsense);
        mac.quit();
        EXPECT_FALSE(mac.helper.isHolding);
    };
    for (const auto& [name, command, key] : calls) {
        for (const Kind kind :
             {Kind::kernelFails, Kind::refuses, Kind::answersZeros, Kind::answersNonsense}) {
            for (const bool isForGood : {false, true}) {
                for (const bool isFromTheStart : {true, false}) {
                    SCOPED_TRACE(testing::Message()
                                 << name << ", kind " << static_cast<int>(kind)
                                 << (isForGood ? ", for good" : ", once")
                                 << (isFromTheStart ? ", from the start" : ", while it runs"));
                    const FaultySMC::Fault fault{command, kind, isForGood, key};
                    expectNoStalls([&] { check(fault, isFromTheStart); });
                }
            }
        }
    }
}

TEST_F(FaultTest, AHelperMayFailAtEachStepOfAPushAndOfQuitting) {
    const QSet appliesNothing{Answer::silent,      Answer::late,  Answer::broken,
                              Answer::invalidated, Answer::empty, Answer::nonsense};
    for (const Answer answer :
         {Answer::silent, Answer::late, Answer::broken, Answer::invalidated, Answer::empty,
          Answer::tooShort, Answer::tooLong, Answer::nonsense, Answer::otherVersion}) {
        for (const Method method :
             {Method::setTargets, Method::status, Method::releaseControl, Method::shutDown}) {
            SCOPED_TRACE(testing::Message() << "method " << static_cast<int>(method) << ", answer "
                                            << static_cast<int>(answer));
            expectNoStalls([&] {
                RunningState mac;
                mac.start();
                ASSERT_TRUE(mac.regainsControl());
                mac.helper.answers = {{method, answer}};
                EXPECT_TRUE(mac.takesSamples(6));
                const ControlWatch& watch = mac.state->engine().watch();
                if (method == Method::setTargets && appliesNothing.contains(answer)) {
                    EXPECT_TRUE(QTest::qWaitFor([&] { return watch.isDenied(); }, limit));
                }
                EXPECT_EQ(mac.state->helper().isHelperOutdated(),
                          method == Method::status && answer == Answer::otherVersion);
                mac.helper.answers.clear();
                EXPECT_TRUE(mac.regainsControl());
                EXPECT_TRUE(QTest::qWaitFor([&] { return !watch.isDenied(); }, limit));

                mac.helper.answers = {{method, answer}};
                mac.quit();
                const bool wasCutOff = answer == Answer::broken || answer == Answer::invalidated;
                EXPECT_FALSE(mac.helper.isHolding && !wasCutOff);
            });
        }
    }
}

} // namespace
} // namespace kestrowind
