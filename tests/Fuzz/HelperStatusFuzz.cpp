#include "Fuzz/Require.h"
#include "Shared/HelperShared/HelperStatus.h"

#include <cmath>
#include <cstdint>

using namespace kestrowind;

/// The helper's status document: what is accepted is finite, and reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto status = decodeHelperStatus({reinterpret_cast<const char*>(data), size});
    if (!status)
        return 0;
    KESTROWIND_REQUIRE(std::isfinite(status->hottestSensorCelsius));
    for (const auto& speeds : {status->autoFloors, status->effectiveTargets}) {
        for (const double speed : speeds)
            KESTROWIND_REQUIRE(std::isfinite(speed));
    }
    KESTROWIND_REQUIRE(decodeHelperStatus(encodeHelperStatus(*status)) == status);
    return 0;
}
