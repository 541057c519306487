#include "Simulator/Services/MachineControl.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/Helper/HelperBehaviour.h"
#include "Simulator/Link/SimulatedMac.h"
#include "Simulator/Services/AtomicFile.h"
#include "Simulator/Services/MachineStatus.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <map>
#include <ranges>
#include <string_view>
#include <utility>

namespace kestrowind {
namespace {

using Json = nlohmann::json;
using Words = MachineControl::Words;

std::unexpected<std::string> error(std::string text) {
    return std::unexpected(std::move(text));
}

/// A kernel return code in decimal, or its 32-bit pattern behind 0x.
std::optional<std::int32_t> parseCode(std::string_view text) {
    const bool isPattern = text.starts_with("0x");
    const char* const begin = text.data() + (isPattern ? 2 : 0);
    const char* const end = text.data() + text.size();
    std::uint32_t pattern = 0;
    std::int32_t code = 0;
    const auto parsed = isPattern ? std::from_chars(begin, end, pattern, 16)
                                  : std::from_chars(begin, end, code, 10);
    if (parsed.ec != std::errc() || parsed.ptr != end)
        return std::nullopt;
    return isPattern ? static_cast<std::int32_t>(pattern) : code;
}

/// The four bytes that an SMC key or type is named by.
std::optional<std::string> fourBytes(std::string_view text) {
    const auto name = parseKeyName(text);
    if (!name)
        return std::nullopt;
    return std::string{static_cast<char>(*name >> 24), static_cast<char>(*name >> 16),
                       static_cast<char>(*name >> 8), static_cast<char>(*name)};
}

/// The words between the separators.
std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (const auto part : std::views::split(text, separator))
        parts.emplace_back(part.begin(), part.end());
    return parts;
}

/// Whether a word is what a command has in its place: one of those between the bars, or any word
/// for a name in capitals.
bool isOneOf(std::string_view alternatives, const std::string& word) {
    return std::ranges::any_of(split(alternatives, '|'), [&word](std::string_view alternative) {
        return alternative == word || (alternative.front() >= 'A' && alternative.front() <= 'Z');
    });
}

} // namespace

struct MachineControl::Command {
    std::string_view words; ///< as people write them
    std::string_view help;  ///< empty for a command that is not for people
    void (MachineControl::*run)(const Words& words, const Done& done);

    [[nodiscard]] bool isMeantBy(const Words& given) const {
        return std::ranges::equal(split(words, ' '), given, isOneOf);
    }
};

std::span<const MachineControl::Command> MachineControl::commands() {
    static constexpr Command all[] = {
        {"status", "everything about the machine, as JSON", &MachineControl::tellStatus},
        {"load NN%|idle|host", "what the processor has to do", &MachineControl::setLoad},
        {"key NAME fail", "the SMC refuses the key", &MachineControl::changeKey},
        {"key NAME timeout", "calls for the key time out", &MachineControl::changeKey},
        {"key NAME remove", "the machine does not have the key", &MachineControl::changeKey},
        {"key NAME type TYPE", "the key shows another type", &MachineControl::changeKey},
        {"key NAME value HEX", "the key shows these bytes, whatever the hardware does",
         &MachineControl::changeKey},
        {"key NAME ok", "the key is well again", &MachineControl::changeKey},
        {"service both|second|none", "which names the SMC's service is registered under",
         &MachineControl::setServices},
        {"open-result CODE", "what opening the SMC returns; 0 opens it",
         &MachineControl::setOpenResult},
        {"helper normal", "the helper behaves", &MachineControl::setHelperBehaviour},
        {"helper silent", "it neither acts nor replies", &MachineControl::setHelperBehaviour},
        {"helper hang", "its loop hangs at the next call", &MachineControl::setHelperBehaviour},
        {"helper late MILLISECONDS", "it replies late", &MachineControl::setHelperBehaviour},
        {"helper garbage", "it replies with rubbish", &MachineControl::setHelperBehaviour},
        {"helper fail TEXT", "it fails for this reason", &MachineControl::setHelperBehaviour},
        {"helper version TEXT", "it reports this version", &MachineControl::setHelperBehaviour},
        {"helper kill|stop|continue", "its process is killed, stopped, continued",
         &MachineControl::signalHelper},
        {"password grant|refuse|hang",
         "what becomes of the dialog that asks for an administrator's\n"
         "                              password: it is filled in, cancelled, or left open until "
         "then",
         &MachineControl::answerPasswordDialogs},
        {"authorize", "", &MachineControl::authorize},
        {"launchd normal|failing", "whether launchd takes on jobs at all",
         &MachineControl::setLaunchdFailing},
        {"bootstrap FILE", "launchd takes on the job that FILE describes",
         &MachineControl::bootstrap},
        {"bootout LABEL", "launchd ends a job and forgets it", &MachineControl::bootout},
    };
    return all;
}

std::string MachineControl::usage() {
    constexpr std::size_t helpColumn = 28;
    std::string text;
    for (const Command& command : commands()) {
        if (command.help.empty())
            continue;
        std::string words(command.words);
        words.resize(helpColumn, ' ');
        text += "  " + words + std::string(command.help) + "\n";
    }
    return text + R"(
NAME and TYPE are four bytes, or 0x and eight hexadecimal digits. CODE is decimal, or hexadecimal
behind 0x.
)";
}

MachineControl::MachineControl(Machine& machine)
    : m_machine(machine) {}

void MachineControl::execute(const Words& words, const Done& done) {
    for (const Command& command : commands()) {
        if (command.isMeantBy(words))
            return (this->*command.run)(words, done);
    }
    std::string text = "unknown command:";
    for (const std::string& word : words)
        text += " " + word;
    for (const Command& command : commands()) {
        if (!words.empty() && split(command.words, ' ').front() == words.front())
            text += "\n  " + std::string(command.words);
    }
    done(error(text));
}

void MachineControl::tellStatus(const Words& /*words*/, const Done& done) {
    Json status = machineStatus(m_machine);
    status["services"] = m_services;
    status["openResult"] = m_openResult;
    status["password"] = m_password;
    status["openPasswordDialogs"] = m_passwordDialogs.size();
    done(std::move(status));
}

void MachineControl::setLoad(const Words& words, const Done& done) {
    auto source = LoadSource::parse(words[1]);
    if (!source)
        return done(error("\"" + words[1] + "\" is no load: idle, host, or 0% to 100%"));
    m_machine.setLoad(std::move(*source));
    done(Json());
}

void MachineControl::changeKey(const Words& words, const Done& done) {
    using Fault = SimulatedSMC::Fault;
    static const std::map<std::string, std::optional<Fault>> faults{{"ok", std::nullopt},
                                                                    {"fail", Fault::fails},
                                                                    {"timeout", Fault::timesOut},
                                                                    {"remove", Fault::missing}};
    SimulatedSMC& smc = m_machine.smc();
    const auto name = fourBytes(words[1]);
    if (!name)
        return done(error("\"" + words[1] + "\" is no key name"));
    if (!smc.hasKey(*name))
        return done(error("the machine has no key " + words[1]));
    const std::string& change = words[2];
    if (change == "type") {
        const auto type = fourBytes(words[3]);
        if (!type)
            return done(error("\"" + words[3] + "\" is no type"));
        smc.holdType(*name, *type);
    } else if (change == "value") {
        const auto bytes = parseHexBytes(words[3]);
        if (!bytes)
            return done(error("\"" + words[3] + "\" is not pairs of hexadecimal digits"));
        smc.holdValue(*name, *bytes);
    } else {
        smc.setFault(*name, faults.at(change));
    }
    done(Json());
}

void MachineControl::setServices(const Words& words, const Done& done) {
    using Services = SimulatedSMC::Services;
    m_services = words[1];
    m_machine.smc().setServices(m_services == "both"     ? Services::both
                                : m_services == "second" ? Services::secondOnly
                                                         : Services::none);
    done(Json());
}

void MachineControl::setOpenResult(const Words& words, const Done& done) {
    const auto code = parseCode(words[1]);
    if (!code)
        return done(error("\"" + words[1] + "\" is no 32-bit code"));
    m_openResult = *code;
    m_machine.smc().setOpenResult(*code);
    done(Json());
}

void MachineControl::setHelperBehaviour(const Words& words, const Done& done) {
    HelperBehaviour behaviour{.kind = helperBehaviourKind(words[1])};
    if (behaviour.kind == HelperBehaviour::Kind::late) {
        const auto delay = parseCode(words[2]);
        if (!delay || *delay < 0)
            return done(error("\"" + words[2] + "\" is no number of milliseconds"));
        behaviour.delay = std::chrono::milliseconds(*delay);
    } else if (words.size() == 3) {
        behaviour.text = words[2];
    }
    const auto file = SimulatedMac::helperBehaviourFile(m_machine.root());
    if (auto written = writeAtomically(file, encodeHelperBehaviour(behaviour)); !written)
        return done(error(std::move(written.error())));
    done(Json());
}

void MachineControl::signalHelper(const Words& words, const Done& done) {
    const int number = words[1] == "kill" ? SIGKILL : words[1] == "stop" ? SIGSTOP : SIGCONT;
    if (!m_machine.launchd().sendSignal(HelperConstants::machServiceName, number))
        return done(error("the helper is not running"));
    done(Json());
}

void MachineControl::authorize(const Words& /*words*/, const Done& done) {
    if (m_password == "hang")
        m_passwordDialogs.push_back(done);
    else
        done(Json(m_password == "grant"));
}

void MachineControl::answerPasswordDialogs(const Words& words, const Done& done) {
    m_password = words[1];
    for (const Done& dialog : std::exchange(m_passwordDialogs, {}))
        authorize({}, dialog);
    done(Json());
}

void MachineControl::setLaunchdFailing(const Words& words, const Done& done) {
    m_machine.launchd().setFailing(words[1] == "failing");
    done(Json());
}

void MachineControl::bootstrap(const Words& words, const Done& done) {
    const auto bootstrapped = m_machine.launchd().bootstrap(words[1]);
    done(bootstrapped ? Result(Json()) : error(bootstrapped.error()));
}

void MachineControl::bootout(const Words& words, const Done& done) {
    m_machine.launchd().bootout(words[1], [done](const Launchd::Result& ended) {
        done(ended ? Result(Json()) : error(ended.error()));
    });
}

} // namespace kestrowind
