#include "Simulator/Services/Machine.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/Link/SimulatedMac.h"
#include "Simulator/ScriptRunner/MacCommand.h"
#include "Simulator/Services/AtomicFile.h"
#include "Simulator/Services/RootFolder.h"

#include <algorithm>
#include <chrono>
#include <nlohmann/json.hpp>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace kestrowind {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds tickInterval{100};
constexpr std::chrono::seconds loadSampleInterval{1};
// A machine that was stopped itself does not live through all of that time afterwards.
constexpr double longestLeap = 10; // seconds

std::string systemInformation(const MachineProfile& profile) {
    const nlohmann::json json{{"hw.model", profile.model},
                              {"machdep.cpu.brand_string", profile.cpu},
                              {"osVersion", profile.osVersion}};
    return json.dump(2) + "\n";
}

} // namespace

Machine::Machine(Setup setup, int lock)
    : m_root(std::move(setup.root))
    , m_lock(lock)
    , m_load(std::move(setup.load))
    , m_hardware(m_smc, std::move(setup.profile), m_load.sample())
    , m_launchd(m_root) {
    QObject::connect(&m_ticks, &QTimer::timeout, &m_ticks, [this] { tick(); });
    m_sinceTick.start();
    m_sinceLoadSample.start();
    m_ticks.start(tickInterval);
}

Machine::~Machine() {
    ::close(m_lock);
}

std::expected<std::unique_ptr<Machine>, std::string> Machine::boot(Setup setup) {
    auto prepared = prepareRootFolder(setup.root);
    if (!prepared)
        return std::unexpected(std::move(prepared.error()));
    setup.root = std::move(*prepared);
    const auto lock = lockRootFolder(setup.root);
    if (!lock)
        return std::unexpected(lock.error());
    std::unique_ptr<Machine> machine(new Machine(std::move(setup), *lock));
    const fs::path& root = machine->m_root;
    // A new machine has a helper that behaves.
    std::error_code ignored;
    fs::remove(SimulatedMac::helperBehaviourFile(root), ignored);
    auto socket = ListeningSocket::listen(SimulatedMac::smcSocket(root), SOCK_SEQPACKET);
    if (!socket)
        return std::unexpected(std::move(socket.error()));
    machine->m_service = std::make_unique<SMCService>(machine->m_smc, std::move(*socket));
    if (auto written = writeAtomically(SimulatedMac::systemInformationFile(root),
                                       systemInformation(machine->m_hardware.profile()));
        !written)
        return std::unexpected(std::move(written.error()));
    return machine;
}

std::expected<void, std::string> Machine::installHelper(const fs::path& executable,
                                                        const std::string& jobDescription) {
    const fs::path program = SimulatedMac::systemPath(m_root, HelperConstants::helperInstallPath);
    const fs::path job = SimulatedMac::systemPath(m_root, HelperConstants::daemonPlistPath);
    std::error_code error;
    // Copied beside and renamed: the old one may still be executing.
    const fs::path fresh = program.string() + ".new";
    fs::copy_file(executable, fresh, fs::copy_options::overwrite_existing, error);
    if (!error)
        fs::permissions(fresh, fs::perms{0755}, error);
    if (!error)
        fs::rename(fresh, program, error);
    if (error)
        return std::unexpected("cannot install " + executable.string() + " as " + program.string() +
                               ": " + error.message());
    if (auto written = writeAtomically(job, jobDescription); !written)
        return written;
    fs::permissions(job, fs::perms{0644}, error);
    if (error)
        return std::unexpected("cannot set the permissions of " + job.string() + ": " +
                               error.message());
    return m_launchd.bootstrap(job);
}

std::expected<void, std::string> Machine::placeCommands(const fs::path& program) {
    std::vector<std::string_view> places(MacCommand::paths.begin(), MacCommand::paths.end());
    places.emplace_back(MacCommand::scriptRunnerPath);
    for (const std::string_view place : places) {
        const fs::path link = SimulatedMac::systemPath(m_root, place);
        std::error_code error;
        // A machine before this one may have been another program's.
        fs::remove(link, error);
        fs::create_symlink(program, link, error);
        if (error)
            return std::unexpected("cannot create " + link.string() + ": " + error.message());
    }
    return {};
}

void Machine::shutDown(std::function<void()> done) {
    m_launchd.shutDown(std::move(done));
}

void Machine::setLoad(LoadSource load) {
    m_load = std::move(load);
    m_hardware.setLoad(m_load.sample());
    m_sinceLoadSample.start();
}

void Machine::tick() {
    const double seconds = static_cast<double>(m_sinceTick.nsecsElapsed()) / 1e9;
    m_sinceTick.start();
    if (std::chrono::milliseconds(m_sinceLoadSample.elapsed()) >= loadSampleInterval) {
        m_sinceLoadSample.start();
        m_hardware.setLoad(m_load.sample());
    }
    m_hardware.step(std::min(seconds, longestLeap));
}

} // namespace kestrowind
