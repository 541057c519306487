#include "Simulator/Services/MachineControl.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/Helper/HelperBehaviour.h"
#include "Simulator/Link/SimulatedMac.h"
#include "Simulator/Services/AtomicFile.h"
#include "Simulator/Services/MachineStatus.h"

#include <charconv>
#include <csignal>
#include <system_error>
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

/// From the words behind "helper"; absent when they describe no behaviour.
std::optional<HelperBehaviour> parseBehaviour(const Words& words) {
    using Kind = HelperBehaviour::Kind;
    if (words.size() == 2) {
        if (words[1] == "normal")
            return HelperBehaviour{};
        if (words[1] == "silent")
            return HelperBehaviour{.kind = Kind::silent};
        if (words[1] == "hang")
            return HelperBehaviour{.kind = Kind::hang};
        if (words[1] == "garbage")
            return HelperBehaviour{.kind = Kind::garbage};
    }
    if (words.size() != 3)
        return std::nullopt;
    if (words[1] == "fail")
        return HelperBehaviour{.kind = Kind::fail, .text = words[2]};
    if (words[1] == "version")
        return HelperBehaviour{.kind = Kind::version, .text = words[2]};
    const auto delay = parseCode(words[2]);
    if (words[1] != "late" || !delay || *delay < 0)
        return std::nullopt;
    return HelperBehaviour{.kind = Kind::late, .delay = std::chrono::milliseconds(*delay)};
}

} // namespace

std::string MachineControl::usage() {
    return R"(  status                      everything about the machine, as JSON
  load NN%|idle|host          what the processor has to do
  key NAME fail               the SMC refuses the key
  key NAME timeout            calls for the key time out
  key NAME remove             the machine does not have the key
  key NAME type TYPE          the key shows another type
  key NAME value HEX          the key shows these bytes, whatever the hardware does
  key NAME ok                 the key is well again
  service both|second|none    which names the SMC's service is registered under
  open-result CODE            what opening the SMC returns; 0 opens it
  helper normal               the helper behaves
  helper silent               it neither acts nor replies
  helper hang                 its loop hangs at the next call
  helper late MILLISECONDS    it replies late
  helper garbage              it replies with rubbish
  helper fail TEXT            it fails for this reason
  helper version TEXT         it reports this version
  helper kill|stop|continue   its process is killed, stopped, continued
  password grant|refuse|hang  what becomes of the dialog that asks for an administrator's
                              password: it is filled in, cancelled, or left open until then
  launchd normal|failing      whether launchd takes on jobs at all
  bootstrap FILE              launchd takes on the job that FILE describes
  bootout LABEL               launchd ends a job and forgets it

NAME and TYPE are four bytes, or 0x and eight hexadecimal digits. CODE is decimal, or hexadecimal
behind 0x.
)";
}

MachineControl::MachineControl(Machine& machine)
    : m_machine(machine) {}

void MachineControl::execute(const Words& words, Done done) {
    const std::string command = words.empty() ? std::string() : words.front();
    if (command == "bootout" && words.size() == 2) {
        m_machine.launchd().bootout(words[1], [done = std::move(done)](Launchd::Result result) {
            done(result ? Result(Json()) : Result(error(std::move(result.error()))));
        });
        return;
    }
    if (command == "authorize" && words.size() == 1) {
        authorize(std::move(done));
        return;
    }
    if (command == "status" && words.size() == 1)
        done(status());
    else if (command == "load" && words.size() == 2)
        done(load(words));
    else if (command == "key" && words.size() >= 3)
        done(key(words));
    else if (command == "service" && words.size() == 2)
        done(service(words));
    else if (command == "open-result" && words.size() == 2)
        done(openResult(words));
    else if (command == "helper" && words.size() >= 2)
        done(helper(words));
    else if (command == "password" && words.size() == 2)
        done(password(words));
    else if (command == "launchd" && words.size() == 2)
        done(launchd(words));
    else if (command == "bootstrap" && words.size() == 2)
        done(bootstrap(words));
    else
        done(
            error("unknown command, or the wrong number of arguments for it: \"" + command + "\""));
}

MachineControl::Result MachineControl::status() const {
    Json status = machineStatus(m_machine);
    status["services"] = m_services;
    status["openResult"] = m_openResult;
    status["password"] = m_password;
    status["openPasswordDialogs"] = m_passwordDialogs.size();
    return status;
}

MachineControl::Result MachineControl::load(const Words& words) {
    auto source = LoadSource::parse(words[1]);
    if (!source)
        return error("\"" + words[1] + "\" is no load: idle, host, or 0% to 100%");
    m_machine.setLoad(std::move(*source));
    return Json();
}

MachineControl::Result MachineControl::key(const Words& words) {
    using Fault = SimulatedSMC::Fault;
    SimulatedSMC& smc = m_machine.smc();
    const auto name = fourBytes(words[1]);
    if (!name)
        return error("\"" + words[1] + "\" is no key name");
    const std::string& deed = words[2];
    if (!smc.hasKey(*name))
        return error("the machine has no key " + words[1]);
    if (deed == "type" && words.size() == 4) {
        const auto type = fourBytes(words[3]);
        if (!type)
            return error("\"" + words[3] + "\" is no type");
        smc.holdType(*name, *type);
    } else if (deed == "value" && words.size() == 4) {
        const auto bytes = parseHexBytes(words[3]);
        if (!bytes)
            return error("\"" + words[3] + "\" is not pairs of hexadecimal digits");
        smc.holdValue(*name, *bytes);
    } else if (deed == "ok" && words.size() == 3) {
        smc.setFault(*name, std::nullopt);
    } else if (deed == "fail" && words.size() == 3) {
        smc.setFault(*name, Fault::fails);
    } else if (deed == "timeout" && words.size() == 3) {
        smc.setFault(*name, Fault::timesOut);
    } else if (deed == "remove" && words.size() == 3) {
        smc.setFault(*name, Fault::missing);
    } else {
        return error("\"" + deed + "\" cannot be done to a key like this");
    }
    return Json();
}

MachineControl::Result MachineControl::service(const Words& words) {
    using Services = SimulatedSMC::Services;
    if (words[1] == "both")
        m_machine.smc().setServices(Services::both);
    else if (words[1] == "second")
        m_machine.smc().setServices(Services::secondOnly);
    else if (words[1] == "none")
        m_machine.smc().setServices(Services::none);
    else
        return error("\"" + words[1] + "\" is none of both, second, none");
    m_services = words[1];
    return Json();
}

MachineControl::Result MachineControl::openResult(const Words& words) {
    const auto code = parseCode(words[1]);
    if (!code)
        return error("\"" + words[1] + "\" is no 32-bit code");
    m_openResult = *code;
    m_machine.smc().setOpenResult(*code);
    return Json();
}

MachineControl::Result MachineControl::helper(const Words& words) {
    if (words.size() == 2 && (words[1] == "kill" || words[1] == "stop" || words[1] == "continue"))
        return signalHelper(words[1]);
    const auto behaviour = parseBehaviour(words);
    if (!behaviour)
        return error("\"" + words[1] + "\" is no behaviour of the helper, or lacks its value");
    const auto file = SimulatedMac::helperBehaviourFile(m_machine.root());
    if (behaviour->kind == HelperBehaviour::Kind::normal) {
        std::error_code failure;
        std::filesystem::remove(file, failure);
        return failure ? Result(error(failure.message())) : Result(Json());
    }
    if (auto written = writeAtomically(file, encodeHelperBehaviour(*behaviour)); !written)
        return error(std::move(written.error()));
    return Json();
}

MachineControl::Result MachineControl::signalHelper(const std::string& deed) {
    const int number = deed == "kill" ? SIGKILL : deed == "stop" ? SIGSTOP : SIGCONT;
    if (!m_machine.launchd().sendSignal(HelperConstants::machServiceName, number))
        return error("the helper is not running");
    return Json();
}

void MachineControl::authorize(Done done) {
    if (m_password == "hang")
        m_passwordDialogs.push_back(std::move(done));
    else
        done(Json(m_password == "grant"));
}

MachineControl::Result MachineControl::password(const Words& words) {
    if (words[1] != "grant" && words[1] != "refuse" && words[1] != "hang")
        return error("\"" + words[1] + "\" is none of grant, refuse, hang");
    m_password = words[1];
    for (const Done& done : std::exchange(m_passwordDialogs, {}))
        authorize(done);
    return Json();
}

MachineControl::Result MachineControl::launchd(const Words& words) {
    if (words[1] != "normal" && words[1] != "failing")
        return error("\"" + words[1] + "\" is neither normal nor failing");
    m_machine.launchd().setFailing(words[1] == "failing");
    return Json();
}

MachineControl::Result MachineControl::bootstrap(const Words& words) {
    if (auto done = m_machine.launchd().bootstrap(words[1]); !done)
        return error(std::move(done.error()));
    return Json();
}

} // namespace kestrowind
