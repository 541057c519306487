// What SMCConnection and the sensor discovery add to the kernel calls they make. Each work is timed
// in turn with the very calls it makes, replayed bare; the counter "ratio" is the one over the
// other.

#include "Shared/SMCKit/SMCTemperatureSensors.h"
#include "Simulator/SimulatedSMC.h"

#include <benchmark/benchmark.h>

namespace kestrowind {
namespace {

using Clock = std::chrono::steady_clock;

/// A machine with two fans, of whose keys one in ten is a CPU sensor and one in forty a GPU sensor.
std::shared_ptr<SimulatedSMC> makeSMC(int keyCount) {
    auto smc = std::make_shared<SimulatedSMC>();
    smc->setByte("FNum", 2);
    for (const int fan : {0, 1}) {
        for (const char* suffix : {"Ac", "Tg", "Mn", "Mx"})
            smc->setFloat(smcFanKey(fan, suffix), 2000);
        smc->setByte(smcFanKey(fan, "Md"), 0);
    }
    constexpr std::string_view digits =
        "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUV";
    for (auto index = smc->keys().size(); index < static_cast<std::size_t>(keyCount); ++index) {
        std::string name = index % 10 == 0 ? "Tp" : index % 40 == 5 ? "Tg" : "VX";
        name += digits[index / digits.size()];
        name += digits[index % digits.size()];
        smc->setFloat(name, 50);
    }
    return smc;
}

/// Times the work, and the bare calls that the recorder saw it make, turn by turn.
class Comparison {
public:
    explicit Comparison(std::shared_ptr<SimulatedSMC> smc)
        : m_smc(std::move(smc))
        , m_connection(m_smc->open(m_smc->matchingService("AppleSMC"), 0).connection) {}

    template <class Work>
    void record(Work work) {
        m_smc->setCallObserver([this](const SMCParamStruct& input) { m_calls.push_back(input); });
        work();
        m_smc->setCallObserver(nullptr);
    }

    template <class Work>
    void turn(benchmark::State& state, Work work) {
        const auto start = Clock::now();
        work();
        const auto between = Clock::now();
        for (const SMCParamStruct& input : m_calls) {
            SMCParamStruct output;
            benchmark::DoNotOptimize(
                m_smc->callStructMethod(m_connection, smcStructMethod, input, output));
            benchmark::DoNotOptimize(output);
        }
        const std::chrono::duration<double> bare = Clock::now() - between;
        const std::chrono::duration<double> worked = between - start;
        state.SetIterationTime(worked.count());
        m_worked += worked.count();
        m_bare += bare.count();
    }

    void report(benchmark::State& state) const {
        state.counters["calls"] = static_cast<double>(m_calls.size());
        state.counters["ratio"] = m_worked / m_bare;
    }

private:
    std::shared_ptr<SimulatedSMC> m_smc;
    std::uint32_t m_connection;
    std::vector<SMCParamStruct> m_calls;
    double m_worked = 0;
    double m_bare = 0;
};

void steadyTick(benchmark::State& state) {
    const auto smc = makeSMC(static_cast<int>(state.range(0)));
    const auto connection = SMCConnection::open(smc).value();
    SMCTemperatureSensors sensors(*connection);
    const auto tick = [&] {
        benchmark::DoNotOptimize(sensors.snapshot());
        benchmark::DoNotOptimize(connection->readAllFans());
    };
    tick();
    Comparison comparison(smc);
    comparison.record(tick);
    for (auto _ : state)
        comparison.turn(state, tick);
    comparison.report(state);
}

void discoveryWalk(benchmark::State& state) {
    const auto smc = makeSMC(static_cast<int>(state.range(0)));
    std::unique_ptr<SMCConnection> connection;
    const auto walk = [&] {
        SMCTemperatureSensors sensors(*connection);
        benchmark::DoNotOptimize(sensors.sensorCounts());
    };
    Comparison comparison(smc);
    connection = SMCConnection::open(smc).value();
    comparison.record(walk);
    for (auto _ : state) {
        connection = SMCConnection::open(smc).value(); // its descriptions are not cached yet
        comparison.turn(state, walk);
    }
    comparison.report(state);
}

BENCHMARK(steadyTick)->Arg(200)->Arg(2000)->UseManualTime();
BENCHMARK(discoveryWalk)->Arg(200)->Arg(2000)->UseManualTime();

} // namespace
} // namespace kestrowind
