// What SMCConnection and the sensor discovery add to the kernel calls they make. Each work is timed
// in turn with the very calls it makes, replayed bare; the counter "ratio" is the one over the
// other.

#include "Shared/SMCKit/SMCTemperatureSensors.h"
#include "Simulator/Link/SMCLink.h"
#include "Simulator/Link/SimulatedMac.h"
#include "Simulator/SimulatedSMC.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <vector>

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
    const auto digit = [&](std::size_t number, std::size_t place) {
        for (; place > 0; --place)
            number /= digits.size();
        return std::string(1, digits[number % digits.size()]);
    };
    std::size_t cpuSensors = 0;
    std::size_t gpuSensors = 0;
    for (auto index = smc->keys().size(); index < static_cast<std::size_t>(keyCount); ++index) {
        const bool isCPU = index % 10 == 0;
        const bool isGPU = index % 40 == 5;
        const std::size_t number = isCPU ? cpuSensors++ : isGPU ? gpuSensors++ : index;
        const std::string prefix = isCPU ? "Tp" : isGPU ? "Tg" : "V" + digit(number, 2);
        smc->setFloat(prefix + digit(number, 1) + digit(number, 0), 50);
    }
    return smc;
}

/// Passes every call on, and writes down the records while it is told to.
class RecordingClient final : public SMCUserClient {
public:
    explicit RecordingClient(std::shared_ptr<SMCUserClient> client)
        : m_client(std::move(client)) {}

    std::vector<SMCParamStruct>* records = nullptr;

    std::uint32_t matchingService(std::string_view name) override {
        return m_client->matchingService(name);
    }
    void releaseService(std::uint32_t service) override { m_client->releaseService(service); }
    Opened open(std::uint32_t service, std::uint32_t type) override {
        return m_client->open(service, type);
    }
    void close(std::uint32_t connection) override { m_client->close(connection); }
    std::int32_t callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                  const SMCParamStruct& input, SMCParamStruct& output) override {
        if (records)
            records->push_back(input);
        return m_client->callStructMethod(connection, selector, input, output);
    }

private:
    std::shared_ptr<SMCUserClient> m_client;
};

/// Times the work, and the bare calls that it makes, turn by turn.
class Comparison {
public:
    explicit Comparison(std::shared_ptr<RecordingClient> client)
        : m_client(std::move(client))
        , m_connection(m_client->open(m_client->matchingService("AppleSMC"), 0).connection) {}

    template <class Work>
    void record(Work work) {
        m_client->records = &m_calls;
        work();
        m_client->records = nullptr;
    }

    template <class Work>
    void turn(benchmark::State& state, Work work) {
        const auto start = Clock::now();
        work();
        const auto between = Clock::now();
        for (const SMCParamStruct& input : m_calls) {
            SMCParamStruct output;
            benchmark::DoNotOptimize(
                m_client->callStructMethod(m_connection, smcStructMethod, input, output));
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
    std::shared_ptr<RecordingClient> m_client;
    std::uint32_t m_connection;
    std::vector<SMCParamStruct> m_calls;
    double m_worked = 0;
    double m_bare = 0;
};

void compareTicks(benchmark::State& state, const std::shared_ptr<SMCUserClient>& machine) {
    const auto client = std::make_shared<RecordingClient>(machine);
    const auto opened = SMCConnection::open(client);
    if (!opened) {
        state.SkipWithError("no SMC");
        return;
    }
    SMCConnection& connection = **opened;
    SMCTemperatureSensors sensors(connection);
    const auto tick = [&] {
        benchmark::DoNotOptimize(sensors.snapshot());
        benchmark::DoNotOptimize(connection.readAllFans());
    };
    tick();
    Comparison comparison(client);
    comparison.record(tick);
    for (auto _ : state)
        comparison.turn(state, tick);
    comparison.report(state);
}

void steadyTick(benchmark::State& state) {
    compareTicks(state, makeSMC(static_cast<int>(state.range(0))));
}

/// A kernel in another process, as far away as a simulated Mac's is from the application; wants to
/// be run inside one.
void steadyTickOfThisMac(benchmark::State& state) {
    const char* const root = std::getenv(SimulatedMac::rootVariable);
    if (!root) {
        state.SkipWithError("not inside a simulated Mac");
        return;
    }
    compareTicks(state, std::make_shared<SMCLink>(SimulatedMac::smcSocket(root)));
}

void discoveryWalk(benchmark::State& state) {
    const auto client =
        std::make_shared<RecordingClient>(makeSMC(static_cast<int>(state.range(0))));
    std::unique_ptr<SMCConnection> connection;
    const auto walk = [&] {
        SMCTemperatureSensors sensors(*connection);
        benchmark::DoNotOptimize(sensors.sensorCounts());
    };
    Comparison comparison(client);
    connection = SMCConnection::open(client).value();
    comparison.record(walk);
    for (auto _ : state) {
        connection = SMCConnection::open(client).value(); // its descriptions are not cached yet
        comparison.turn(state, walk);
    }
    comparison.report(state);
}

BENCHMARK(steadyTick)->Arg(200)->Arg(2000)->UseManualTime();
BENCHMARK(steadyTickOfThisMac)->UseManualTime();
BENCHMARK(discoveryWalk)->Arg(200)->Arg(2000)->Arg(20000)->UseManualTime();

} // namespace
} // namespace kestrowind
