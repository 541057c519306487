#include "Core/FanFacts.h"
#include "Core/HistoryTable.h"
#include "Core/TelemetrySampler.h"
#include "Core/TelemetryStore.h"
#include "Core/TemperatureText.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/TestDefaults.h"

#include <QLocale>
#include <QTest>
#include <gmock/gmock.h>

#include <atomic>
#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;

TelemetrySample sample(double cpuMax, double gpuMax = 0, int fans = 1) {
    static int number = 0;
    TelemetrySample made{.timestamp = std::chrono::system_clock::time_point(1s * ++number),
                         .temperatures = {.cpuAverage = cpuMax - 1,
                                          .cpuMax = cpuMax,
                                          .gpuAverage = gpuMax,
                                          .gpuMax = gpuMax,
                                          .hottest = std::max(cpuMax, gpuMax)},
                         .fans = {}};
    made.fans.resize(static_cast<std::size_t>(fans));
    return made;
}

/// A machine with one fan and one sensor of each group.
std::shared_ptr<SimulatedSMC> makeMachine() {
    auto smc = std::make_shared<SimulatedSMC>();
    smc->setFloat("Tp01", 50);
    smc->setFloat("Tg01", 40);
    smc->setByte("FNum", 1);
    for (const char* key : {"F0Ac", "F0Tg", "F0Mn", "F0Mx"})
        smc->setFloat(key, 1200);
    return smc;
}

class TelemetryStoreTest : public testing::Test {
protected:
    TestHome home;
    std::unique_ptr<UserDefaults> defaults = home.defaults();
    std::shared_ptr<SimulatedSMC> smc = makeMachine();
    TelemetryStore store{*defaults, [this] { return smc; }};
};

TEST_F(TelemetryStoreTest, SmoothsPeaksAndRemembers) {
    EXPECT_EQ(store.systemTemperature(), std::nullopt);
    EXPECT_EQ(store.hottestTemperature(), std::nullopt);
    const std::pair<double, double> rows[] = {{50, 50}, {60, 54}, {60, 56.4}, {0, 33.84}};
    for (const auto& [measured, smoothed] : rows) {
        store.ingest(sample(measured, measured / 2));
        EXPECT_DOUBLE_EQ(store.cpuHottestSmoothed(), smoothed) << measured;
        EXPECT_DOUBLE_EQ(store.gpuHottestSmoothed(), smoothed / 2) << measured;
    }
    EXPECT_EQ(store.peakCPU(), 60);
    EXPECT_EQ(store.peakGPU(), 30);

    for (int i = 0; i < 897; ++i)
        store.ingest(sample(i == 0 ? 41 : 42));
    ASSERT_EQ(store.history().size(), 900);
    EXPECT_EQ(store.history().first().temperatures.cpuMax, 60);
    EXPECT_EQ(store.history().last(), *store.latest());
}

TEST_F(TelemetryStoreTest, ChoosesTheTemperatureByTheUsersSetting) {
    store.ingest(sample(60, 70));
    store.ingest(sample(80, 50));
    for (const auto& [source, chosen] :
         {std::pair("", 79.0), {"HottestCore", 79.0}, {"hottestCore", 60 + 20 * 0.4}}) {
        defaults->setString(u"fanBoostTemperatureSource"_s, QString::fromLatin1(source));
        EXPECT_EQ(store.systemTemperature(), chosen) << source;
    }
    EXPECT_EQ(store.systemTemperature(), store.hottestTemperature());
}

TEST_F(TelemetryStoreTest, TellsOnlyOfRealChangesAndOnlyOfWholeOnes) {
    int changes = 0;
    for (const auto signal :
         {&TelemetryStore::peakCPUChanged, &TelemetryStore::peakGPUChanged,
          &TelemetryStore::cpuHottestSmoothedChanged, &TelemetryStore::gpuHottestSmoothedChanged})
        QObject::connect(&store, signal, &store, [&] { ++changes; });
    int availabilities = 0;
    QObject::connect(&store, &TelemetryStore::smcAvailableChanged, &store, [&] {
        ++availabilities;
        EXPECT_EQ(store.history().last(), *store.latest());
    });
    std::vector<int> order;
    const auto note = [&](QObject* context, int number, TelemetryStore::Turn turn) {
        const auto handler = [&, number](const TelemetrySample& taken) {
            EXPECT_EQ(store.history().last(), taken);
            order.push_back(number);
        };
        store.onSample(context, handler, turn);
    };
    auto listener = std::make_unique<QObject>();
    note(listener.get(), 2, TelemetryStore::Turn::afterControl);
    note(&store, 3, TelemetryStore::Turn::afterControl);
    note(&store, 1, TelemetryStore::Turn::control);

    store.ingest(sample(50, 40));
    store.ingest(sample(50, 40));
    EXPECT_EQ(changes, 4);
    EXPECT_THAT(order, ElementsAre(1, 2, 3, 1, 2, 3));
    listener.reset();
    order.clear();
    store.ingest(sample(0, 0, 0));
    EXPECT_THAT(order, ElementsAre(1, 3)) << "a listener that is gone hears no more";
    EXPECT_FALSE(store.smcAvailable());
    store.ingest(sample(0, 0, 0));
    EXPECT_EQ(availabilities, 1);
    store.ingest(sample(0, 0, 1));
    EXPECT_TRUE(store.smcAvailable());
}

constexpr const char* header = "Time,CPU average (Celsius),CPU hottest (Celsius),"
                               "GPU average (Celsius),GPU hottest (Celsius)";

TelemetrySample sampleAt(qint64 milliseconds, const SMCTemperatureSnapshot& temperatures,
                         std::vector<SMCFanReading> fans) {
    const std::chrono::system_clock::time_point timestamp(milliseconds * 1ms);
    return {timestamp, temperatures, std::move(fans)};
}

TEST(HistoryTable, HasARowForEachSampleAndAColumnForEachFan) {
    // A language whose decimals have a comma changes nothing.
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const qint64 summer = 1'750'000'000'123; // 2025-06-15T15:06:40.123Z
    const QByteArray table = historyTable(
        {sampleAt(summer, {50.126, 61.5, 40, 45, 61.5}, {{.index = 0, .actualRPM = 2317.4}}),
         sampleAt(summer + 2000, {1e-3, std::numeric_limits<double>::quiet_NaN(), 0, 0, 0}, {}),
         sampleAt(summer + 4000, {50, 60, 40, 45, 60},
                  {{.index = 2, .actualRPM = std::numeric_limits<double>::infinity()},
                   {.index = 0, .actualRPM = 0}})},
        QTimeZone("Europe/Berlin"));
    QLocale::setDefault(before);
    EXPECT_EQ(table, QByteArray(header) +
                         ",Fan 1 (rpm),Fan 3 (rpm)\r\n"
                         "2025-06-15T17:06:40.123+02:00,50.13,61.50,40.00,45.00,2317,\r\n"
                         "2025-06-15T17:06:42.123+02:00,0.00,,,,,\r\n"
                         "2025-06-15T17:06:44.123+02:00,50.00,60.00,40.00,45.00,0,\r\n");
    EXPECT_EQ(historyTable({}), QByteArray(header) + "\r\n");

    // The second one of the hour that happens twice, and an offset of half an hour to the west.
    const qint64 autumn = 1'761'442'200'000;
    EXPECT_TRUE(historyTable({sampleAt(autumn, {}, {})}, QTimeZone("Europe/Berlin"))
                    .contains("\r\n2025-10-26T02:30:00.000+01:00,"));
    EXPECT_TRUE(historyTable({sampleAt(-500, {}, {})}, QTimeZone("America/St_Johns"))
                    .contains("\r\n1969-12-31T20:29:59.500-03:30,"));
}

TEST(FanFacts, SaysOfAFanWhatIsKnown) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double inf = std::numeric_limits<double>::infinity();
    struct Row {
        double actual, most;
        FanFacts expected;
    };
    for (const auto& [actual, most, expected] : {
             Row{1500.9, 6000, {2, u"Fan 3"_s, u"1500"_s, false, 1500.9 / 6000, true}},
             Row{7000, 6000, {2, u"Fan 3"_s, u"7000"_s, false, 1, true}},
             Row{0, 6000, {2, u"Fan 3"_s, u"0"_s, true, 0, true}},
             Row{2000, 0, {2, u"Fan 3"_s, u"2000"_s, false, 0, false}},
             Row{2000, nan, {2, u"Fan 3"_s, u"2000"_s, false, 0, false}},
             Row{inf, 6000, {2, u"Fan 3"_s, u"--"_s, false, 1, false}},
             Row{inf, inf, {2, u"Fan 3"_s, u"--"_s, false, 0, false}},
         })
        EXPECT_EQ(FanFacts::of({.index = 2, .actualRPM = actual, .maxRPM = most}, 3), expected)
            << actual << " of " << most;
}

TEST(TemperatureText, FollowsTheLocale) {
    const QLocale before;
    for (const auto& [language, celsius, text] : {
             std::tuple(QLocale::English, 54.24, u"54.2"_s),
             {QLocale::German, 54.26, u"54,3"_s},
             {QLocale::German, 99.94, u"99,9"_s},
             {QLocale::German, 100, u"100"_s},
             {QLocale::German, 104.6, u"105"_s},
             {QLocale::German, 0, u"--"_s},
             {QLocale::German, std::nan(""), u"--"_s},
         }) {
        QLocale::setDefault(QLocale(language));
        EXPECT_EQ(TemperatureText::precise(celsius), text);
    }
    QLocale::setDefault(before);
}

/// The sampler's callback; samples are handed over to this thread.
struct SamplerProbe {
    QObject here;
    std::vector<TelemetrySample> samples;

    TelemetrySampler::OnSample callback() {
        return [this](const TelemetrySample& taken) {
            QMetaObject::invokeMethod(&here, [this, taken] { samples.push_back(taken); });
        };
    }
    bool waitFor(std::size_t count) {
        return QTest::qWaitFor([&] { return samples.size() >= count; }, 3000);
    }
};

TEST(TelemetrySampler, DeliversNothingWithoutAnSMC) {
    const auto smc = makeMachine();
    smc->setServices(SimulatedSMC::Services::none);
    SamplerProbe probe;
    std::atomic<int> attempts = 0;
    auto sampler = std::make_unique<TelemetrySampler>([&] {
        ++attempts;
        return smc;
    });
    sampler->start(1ms, probe.callback());
    ASSERT_TRUE(QTest::qWaitFor([&] { return attempts == 1; }, 3000));
    EXPECT_TRUE(probe.samples.empty());
    // A later start tries again and then delivers.
    smc->setServices(SimulatedSMC::Services::both);
    sampler->start(1ms, probe.callback());
    EXPECT_TRUE(probe.waitFor(1));
    sampler.reset();
    EXPECT_EQ(smc->openConnections(), 0U);
}

TEST(TelemetrySampler, EndsInTheMiddleOfATickThatASlowMachineDrawsOut) {
    const auto smc = makeMachine();
    std::atomic<int> calls = 0;
    smc->setCallObserver([&](const SMCParamStruct&) {
        ++calls;
        QThread::msleep(200);
    });
    auto sampler = std::make_unique<TelemetrySampler>([&] { return smc; });
    sampler->start(1h, [](const TelemetrySample&) {});
    ASSERT_TRUE(QTest::qWaitFor([&] { return calls > 0; }));
    sampler.reset();
    EXPECT_LE(calls, 2);
}

TEST(TelemetrySampler, KeepsTemperaturesWhenAFanFailsAndDatesSamplesBeforeReading) {
    const auto smc = makeMachine();
    smc->removeKey("F0Mx");
    SamplerProbe probe;
    std::atomic<std::chrono::system_clock::time_point> lastSensorRead{};
    smc->setCallObserver([&](const SMCParamStruct& record) {
        if (record.key == smcFourCC("Tp01") && record.data8 == SMCCommand::readKey)
            lastSensorRead = std::chrono::system_clock::now();
    });
    TelemetrySampler sampler([&] { return smc; });
    sampler.start(1h, probe.callback());
    ASSERT_TRUE(probe.waitFor(1));
    EXPECT_TRUE(probe.samples[0].fans.empty());
    EXPECT_EQ(probe.samples[0].temperatures.cpuMax, 50);
    EXPECT_LE(probe.samples[0].timestamp, lastSensorRead.load());

    // A second start neither opens nor discovers again, and keeps one timer.
    const int names = smc->counts().keyNames;
    sampler.start(1h, probe.callback());
    ASSERT_TRUE(probe.waitFor(2));
    EXPECT_EQ(smc->counts().keyNames, names);
    EXPECT_EQ(smc->openConnections(), 1U);
}

} // namespace
} // namespace kestrowind
