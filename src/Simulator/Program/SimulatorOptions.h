#pragma once

#include "Simulator/Hardware/MachineProfile.h"
#include "Simulator/Services/LoadSource.h"

#include <QStringList>

#include <expected>
#include <optional>
#include <string>
#include <vector>

namespace kestrowind {

/// What `kestrowind-simulator` was asked to boot.
struct SimulatorOptions {
    MachineProfile profile;
    LoadSource load;
    std::optional<std::string> root; ///< absent: a temporary folder
    bool isHelperInstalled = false;
    std::vector<std::string> command; ///< empty: run until told to end

    [[nodiscard]] static std::string help();
    /// From the arguments, the program's name first. The error is one line for people.
    [[nodiscard]] static std::expected<SimulatorOptions, std::string>
    parse(const QStringList& arguments);
};

} // namespace kestrowind
