#include "Simulator/Link/SimulatedMac.h"

#include <cstdlib>
#include <system_error>

namespace kestrowind {

namespace fs = std::filesystem;

fs::path SimulatedMac::rootAt(const fs::path& name) {
    std::error_code error;
    const fs::path absolute = fs::absolute(name, error);
    fs::path root = fs::weakly_canonical(absolute, error);
    if (error)
        root = absolute.lexically_normal();
    return root.has_filename() ? root : root.parent_path();
}

std::optional<fs::path> SimulatedMac::root() {
    const char* value = std::getenv(rootVariable);
    if (value == nullptr || *value == '\0')
        return std::nullopt;
    return rootAt(value);
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
