#include "Simulator/Link/SimulatedMac.h"

#include <cstdlib>

namespace kestrowind {

namespace fs = std::filesystem;

std::optional<fs::path> SimulatedMac::root() {
    const char* value = std::getenv(rootVariable);
    if (value == nullptr || *value == '\0')
        return std::nullopt;
    return fs::path(value);
}

fs::path SimulatedMac::systemPath(const fs::path& root, std::string_view macPath) {
    return root / fs::path(macPath).relative_path();
}

fs::path SimulatedMac::smcSocket(const fs::path& root) {
    return root / "run" / "smc";
}

fs::path SimulatedMac::controlSocket(const fs::path& root) {
    return root / "run" / "control";
}

fs::path SimulatedMac::serviceSocket(const fs::path& root, std::string_view machServiceName) {
    return root / "run" / "mach" / machServiceName;
}

fs::path SimulatedMac::systemInformationFile(const fs::path& root) {
    return root / "run" / "system.json";
}

fs::path SimulatedMac::helperBehaviourFile(const fs::path& root) {
    return root / "run" / "helper-behaviour.json";
}

} // namespace kestrowind
