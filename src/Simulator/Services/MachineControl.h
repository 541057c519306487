#pragma once

#include "Simulator/Services/Machine.h"

#include <nlohmann/json.hpp>

#include <expected>
#include <functional>
#include <span>
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
    void execute(const Words& words, const Done& done);

private:
    struct Command;

    [[nodiscard]] static std::span<const Command> commands();
    void tellStatus(const Words& words, const Done& done);
    void setLoad(const Words& words, const Done& done);
    void changeKey(const Words& words, const Done& done);
    void setServices(const Words& words, const Done& done);
    void setOpenResult(const Words& words, const Done& done);
    void setHelperBehaviour(const Words& words, const Done& done);
    void signalHelper(const Words& words, const Done& done);
    /// Done once the person in front of the machine has answered: true with the password.
    void authorize(const Words& words, const Done& done);
    void answerPasswordDialogs(const Words& words, const Done& done);
    void setLaunchdFailing(const Words& words, const Done& done);
    void bootstrap(const Words& words, const Done& done);
    void bootout(const Words& words, const Done& done);

    Machine& m_machine;
    std::string m_services = "both";
    std::int32_t m_openResult = 0;
    std::string m_password = "grant";
    std::vector<Done> m_passwordDialogs; ///< open ones
};

} // namespace kestrowind
