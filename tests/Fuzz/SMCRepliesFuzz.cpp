#include "Fuzz/Require.h"
#include "Shared/SMCKit/SMCConnection.h"
#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

using namespace kestrowind;

namespace {

/// A kernel whose every answer comes from the input; all zeros once that is used up. Only what
/// begins with 0xff may say that there are many keys: walking them takes a thousand times longer
/// than all else.
class FuzzedKernel final : public SMCUserClient {
public:
    explicit FuzzedKernel(std::span<const std::uint8_t> answers)
        : m_answers(answers)
        , m_hasManyKeys(next() == 0xff) {}

    std::uint32_t matchingService(std::string_view) override { return 1 + next() % 2; }
    void releaseService(std::uint32_t) override {}
    Opened open(std::uint32_t, std::uint32_t) override { return {.code = 0, .connection = 1}; }
    void close(std::uint32_t) override {}
    std::int32_t callStructMethod(std::uint32_t, std::uint32_t, const SMCParamStruct& input,
                                  SMCParamStruct& output) override {
        ++m_calls;
        switch (next()) {
        case 0: // a number that suits the question, so that the walk gets somewhere
            output.keyInfo.dataSize = 4;
            output.keyInfo.dataType = 0x666c7420;   // "flt "
            output.key = 0x54703030 + input.data32; // "Tp00" and on
            std::memcpy(output.bytes.data(), "\x00\x00\x00\x10", 4);
            return 0;
        case 1:
            return -1;
        default:
            break;
        }
        auto* bytes = reinterpret_cast<std::uint8_t*>(&output);
        const std::size_t size = std::min(sizeof output, m_answers.size());
        std::copy_n(m_answers.begin(), size, bytes);
        m_answers = m_answers.subspan(size);
        constexpr std::uint32_t numberOfKeys = 0x234b4559; // "#KEY"
        if (input.data8 == SMCCommand::readKey && input.key == numberOfKeys && !m_hasManyKeys)
            output.bytes[0] = output.bytes[1] = output.bytes[2] = 0;
        return 0;
    }

    [[nodiscard]] std::size_t calls() const { return m_calls; }

private:
    std::uint8_t next() {
        if (m_answers.empty())
            return 0;
        const std::uint8_t byte = m_answers.front();
        m_answers = m_answers.subspan(1);
        return byte;
    }

    std::span<const std::uint8_t> m_answers;
    bool m_hasManyKeys;
    std::size_t m_calls = 0;
};

} // namespace

/// What the kernel answers, bit for bit: fans and sensors are read, and no walk is endless.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto kernel = std::make_shared<FuzzedKernel>(std::span(data, size));
    auto opened = SMCConnection::open(kernel);
    if (!opened)
        return 0;
    SMCConnection& smc = **opened;
    SMCTemperatureSensors sensors(smc);
    for (int tick = 0; tick < 2; ++tick) {
        const SMCTemperatureSnapshot snapshot = sensors.snapshot();
        KESTROWIND_REQUIRE(snapshot.hottest == std::max(snapshot.cpuMax, snapshot.gpuMax));
        KESTROWIND_REQUIRE(snapshot.cpuAverage <= snapshot.cpuMax);
        KESTROWIND_REQUIRE(snapshot.gpuAverage <= snapshot.gpuMax);
        if (const auto fans = smc.readAllFans())
            KESTROWIND_REQUIRE(fans->size() <= 255);
    }
    KESTROWIND_REQUIRE(kernel->calls() <= 4 * (std::size_t{smcMaximumKeyCount} + 4096));
    return 0;
}
