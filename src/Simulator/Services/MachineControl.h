#pragma once

#include "Simulator/Services/Machine.h"

#include <nlohmann/json.hpp>

#include <expected>
#include <functional>
#include <string>
#include <vector>

namespace kestrowind {

/// The `ctl` commands, apart from how they arrive.
class MachineControl {
public:
    using Words = std::vector<std::string>;
    using Result = std::expected<nlohmann::json, std::string>;
    using Done = std::function<void(Result)>;

    /// Lines for people: every command and what it does.
    [[nodiscard]] static std::string usage();

    explicit MachineControl(Machine& machine);

    /// Carries a command out. done is called once, usually at once; the result of a command that
    /// has nothing to say is null.
    void execute(const Words& words, Done done);

private:
    [[nodiscard]] Result status() const;
    [[nodiscard]] Result load(const Words& words);
    [[nodiscard]] Result key(const Words& words);
    [[nodiscard]] Result service(const Words& words);
    [[nodiscard]] Result openResult(const Words& words);
    [[nodiscard]] Result helper(const Words& words);
    [[nodiscard]] Result signalHelper(const std::string& deed);
    /// Done once the person in front of the machine has answered: true with the password.
    void authorize(Done done);
    [[nodiscard]] Result password(const Words& words);
    [[nodiscard]] Result launchd(const Words& words);
    [[nodiscard]] Result bootstrap(const Words& words);

    Machine& m_machine;
    std::string m_services = "both";
    std::int32_t m_openResult = 0;
    std::string m_password = "grant";
    std::vector<Done> m_passwordDialogs; ///< open ones
};

} // namespace kestrowind
