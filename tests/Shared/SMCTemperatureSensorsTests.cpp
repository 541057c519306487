#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include "Shared/SMCMachine.h"

#include <cmath>

namespace kestrowind {
namespace {

using namespace std::chrono_literals;
using Counts = SMCTemperatureSensors::Counts;
using Fault = SimulatedSMC::Fault;

class SMCTemperatureSensorsTest : public testing::Test {
protected:
    SMCTemperatureSensors makeSensors() {
        return SMCTemperatureSensors(*mac.connection, [this] { return now; });
    }
    /// Whether a snapshot walks the directory after this long.
    bool walksAfter(std::chrono::milliseconds pause, SMCTemperatureSensors& sensors) {
        now += pause;
        return mac.countsOf([&] { (void)sensors.snapshot(); }).keyNames > 0;
    }
    void expectWalkExactlyAfter(std::chrono::milliseconds wait, SMCTemperatureSensors& sensors) {
        EXPECT_FALSE(walksAfter(wait - 1ms, sensors)) << wait.count() << " ms";
        EXPECT_TRUE(walksAfter(1ms, sensors)) << wait.count() << " ms";
    }

    SMCMachine mac;
    std::chrono::steady_clock::time_point now{};
};

TEST_F(SMCTemperatureSensorsTest, OnlyPlausibleFloatsOfTheDiesPrefixesAreSensors) {
    const std::tuple<const char*, float, Counts> rows[] = {
        {"Tp0a", 1.01F, {1, 0}}, {"Te0a", 127.9F, {1, 0}}, {"Tg0a", 40, {0, 1}}, {"Tp0a", 1, {}},
        {"Tp0a", 128, {}},       {"Tg0a", NAN, {}},        {"Tg0a", -40, {}},    {"TP0a", 40, {}},
        {"Ts0a", 40, {}},        {"0aTp", 40, {}}};
    for (const auto& [name, celsius, counts] : rows) {
        mac = {};
        mac.smc->setFloat(name, celsius);
        mac.smc->setByte("Tp0b", 40);
        EXPECT_EQ(makeSensors().sensorCounts(), counts) << name << " " << celsius;
    }
}

TEST_F(SMCTemperatureSensorsTest, TheLastValidValuesAreHeldOver) {
    mac.smc->setFloat("Tp0a", 50);
    mac.smc->setFloat("Te0a", 60);
    mac.smc->setFloat("Tg0a", 70);
    auto sensors = makeSensors();
    EXPECT_EQ(sensors.snapshot(), (SMCTemperatureSnapshot{55, 60, 70, 70, 70}));
    mac.smc->setFault("Te0a", Fault::fails); // skipped, but still in the group
    mac.smc->setFloat("Tg0a", 0);
    EXPECT_EQ(sensors.snapshot(), (SMCTemperatureSnapshot{50, 50, 70, 70, 70}));
    mac.smc->setFault("Tp0a", Fault::missing);
    mac.smc->setFloat("Tg0a", 40);
    EXPECT_EQ(sensors.snapshot(), (SMCTemperatureSnapshot{50, 50, 40, 40, 50}));
    mac.smc->setFault("Te0a", std::nullopt);
    EXPECT_EQ(sensors.snapshot(), (SMCTemperatureSnapshot{60, 60, 40, 40, 60}));
}

TEST_F(SMCTemperatureSensorsTest, AMissingGroupIsLookedForAfterDoublingWaitsUpToACeiling) {
    const std::pair<const char*, std::vector<std::chrono::seconds>> machines[] = {
        {"Tg0a", {1s, 2s, 4s, 8s, 16s, 32s, 64s, 128s, 256s, 300s, 300s}},
        {"FNum", {2s, 4s, 8s, 16s, 32s, 64s, 128s, 256s, 300s}}, // the first walk was fruitless
        {"Tp0a", {60s, 120s, 240s, 480s, 960s, 1920s, 3600s, 3600s}}};
    for (const auto& [onlyKey, waits] : machines) {
        SCOPED_TRACE(onlyKey);
        mac = {};
        mac.smc->setFloat(onlyKey, 40);
        auto sensors = makeSensors();
        for (const auto wait : waits)
            expectWalkExactlyAfter(wait, sensors);
        for (int more = 0; more < 70; ++more)
            expectWalkExactlyAfter(waits.back(), sensors);
    }
}

TEST_F(SMCTemperatureSensorsTest, AGroupOnceFoundIsNeverGivenUpAndStartsTheWaitsAnew) {
    auto sensors = makeSensors();
    EXPECT_EQ(sensors.snapshot(), SMCTemperatureSnapshot{});
    mac.smc->setFloat("Tp0a", 50);
    expectWalkExactlyAfter(2s, sensors);
    mac.smc->setFault("Tp0a", Fault::fails);
    expectWalkExactlyAfter(60s, sensors);
    EXPECT_EQ(sensors.sensorCounts(), (Counts{1, 0}));
    mac.smc->setFloat("Tg0a", 45);
    expectWalkExactlyAfter(120s, sensors);
    EXPECT_EQ(sensors.sensorCounts(), (Counts{1, 1}));
    EXPECT_FALSE(walksAfter(24h, sensors));
}

TEST_F(SMCTemperatureSensorsTest, AKeyCountThatIsUnreadableOrNonsenseIsNotWalkedToItsEnd) {
    mac.smc->setFloat("Tp0a", 50);
    mac.smc->setKey("#KEY", "ui32", {0, 0, 0, 2});
    mac.smc->setFault("#KEY", Fault::fails);
    auto sensors = makeSensors();
    EXPECT_FALSE(walksAfter(0s, sensors));
    mac.smc->setFault("#KEY", std::nullopt);
    EXPECT_TRUE(walksAfter(0s, sensors));
    mac.smc->setFault("#KEY", Fault::timesOut);
    EXPECT_FALSE(walksAfter(60s, sensors));
    EXPECT_EQ(sensors.sensorCounts(), (Counts{1, 0}));
    mac.smc->setKey("#KEY", "ui32", {0xFF, 0xFF, 0xFF, 0xFF});
    mac.smc->setFault("#KEY", std::nullopt);
    EXPECT_TRUE(walksAfter(0s, sensors));
    EXPECT_EQ(mac.smc->counts().keyNames, static_cast<int>(smcMaximumKeyCount)) << "nonsense";
    expectWalkExactlyAfter(120s, sensors); // only the second walk was fruitless
}

TEST_F(SMCTemperatureSensorsTest, ASteadyTickCostsOneCallAValue) {
    for (const char* sensor : {"Tp0a", "Te0a", "Tg0a"})
        mac.smc->setFloat(sensor, 50);
    mac.smc->setByte("FNum", 2);
    mac.addFan(0);
    mac.addFan(1);
    auto sensors = makeSensors();
    const auto tick = [&] {
        (void)sensors.snapshot();
        (void)mac.connection->readAllFans();
    };
    tick();
    const auto steady = mac.countsOf(tick);
    EXPECT_EQ(steady.calls, 3 + 1 + 2 * 5);
    EXPECT_EQ(steady.reads, steady.calls); // no key by index, no description, no write
}

} // namespace
} // namespace kestrowind
