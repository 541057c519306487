#pragma once

#include "Simulator/Services/Machine.h"

#include <nlohmann/json.hpp>

namespace kestrowind {

/// Everything that can be told of a machine, but what only its control knows.
[[nodiscard]] nlohmann::json machineStatus(Machine& machine);

} // namespace kestrowind
