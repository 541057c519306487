#include "Simulator/Services/RootFolder.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/Link/SimulatedMac.h"
#include "Simulator/ScriptRunner/MacCommand.h"
#include "Simulator/Services/ListeningSocket.h"

#include <QString>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace kestrowind {
namespace {

namespace fs = std::filesystem;
using Checked = std::expected<void, std::string>;

/// The folders in a machine's root that its own files lie in.
std::vector<fs::path> machineFolders(const fs::path& root) {
    std::vector<fs::path> folders{SimulatedMac::serviceSocket(root, "x").parent_path()};
    std::vector<std::string_view> files(MacCommand::paths.begin(), MacCommand::paths.end());
    for (const std::string_view file :
         {MacCommand::scriptRunnerPath, HelperConstants::daemonPlistPath,
          HelperConstants::helperInstallPath})
        files.push_back(file);
    for (const std::string_view file : files)
        folders.push_back(SimulatedMac::systemPath(root, file).parent_path());
    return folders;
}

fs::path lockFile(const fs::path& root) {
    return SimulatedMac::smcSocket(root).parent_path() / "machine.lock";
}

Checked checkName(const fs::path& root) {
    const std::string name = root.string();
    if (name.contains(':'))
        return std::unexpected(name + ": a colon, which separates the folders of a search path, "
                                      "cannot be in the path of a machine");
    if (QString::fromStdString(name).toStdString() != name)
        return std::unexpected(name + ": the path of a machine has to be UTF-8");
    return ListeningSocket::checkLength(
        SimulatedMac::serviceSocket(root, HelperConstants::machServiceName));
}

/// With the folders above it, and for nobody else.
Checked create(const fs::path& folder) {
    std::error_code error;
    const mode_t before = ::umask(S_IRWXG | S_IRWXO);
    fs::create_directories(folder, error);
    ::umask(before);
    if (error)
        return std::unexpected("cannot create " + folder.string() + ": " + error.message());
    return {};
}

bool isWritableByOthers(const struct stat& facts) {
    // A group with its owner's number is that owner's alone.
    const bool isOwnGroup = facts.st_gid == facts.st_uid;
    return (facts.st_mode & S_IWOTH) != 0 || ((facts.st_mode & S_IWGRP) != 0 && !isOwnGroup);
}

std::expected<struct stat, std::string> factsOf(const fs::path& path) {
    struct stat facts {};
    if (::lstat(path.c_str(), &facts) != 0)
        return std::unexpected("cannot examine " + path.string() + ": " + std::strerror(errno));
    return facts;
}

/// Whether others could put something else in the place of what a folder above the root holds.
Checked checkAbove(const fs::path& folder) {
    // How a container shows what belongs to the system outside of it.
    constexpr uid_t nobody = 65534;
    const auto facts = factsOf(folder);
    if (!facts)
        return std::unexpected(facts.error());
    if (facts->st_uid != ::geteuid() && facts->st_uid != 0 && facts->st_uid != nobody)
        return std::unexpected(folder.string() + " belongs to another user, who could exchange the "
                                                 "machine in it");
    if (isWritableByOthers(*facts) && (facts->st_mode & S_ISVTX) == 0)
        return std::unexpected(folder.string() + " is writable by other users, who could exchange "
                                                 "the machine in it");
    return {};
}

/// Whether a part of the machine, the root among them, is its owner's alone.
Checked checkOwn(const fs::path& path) {
    const auto facts = factsOf(path);
    if (!facts)
        return std::unexpected(facts.error());
    if (facts->st_uid != ::geteuid())
        return std::unexpected(path.string() + " belongs to another user, whose programs the "
                                               "machine would run");
    if (S_ISDIR(facts->st_mode) && isWritableByOthers(*facts))
        return std::unexpected(path.string() + " is writable by other users, whose programs the "
                                               "machine would run");
    return {};
}

/// Only its commands are links: through any other the machine would write outside of its folder.
Checked checkNoLink(const fs::path& path) {
    const auto facts = factsOf(path);
    if (!facts)
        return std::unexpected(facts.error());
    if (S_ISLNK(facts->st_mode))
        return std::unexpected(path.string() + " is a link, through which the machine would write");
    return {};
}

/// Whether a folder, if there is one, and all that is in it passes a check.
Checked checkAllIn(const fs::path& folder, Checked (*check)(const fs::path&)) {
    std::error_code error;
    if (!fs::exists(fs::symlink_status(folder, error)))
        return {};
    Checked safe = check(folder);
    for (fs::recursive_directory_iterator entry(folder, error), end; safe && !error && entry != end;
         entry.increment(error))
        safe = check(entry->path());
    if (safe && error)
        return std::unexpected("cannot look into " + folder.string() + ": " + error.message());
    return safe;
}

Checked checkSafety(const fs::path& root) {
    for (fs::path folder = root; folder != folder.parent_path();) {
        folder = folder.parent_path();
        if (auto safe = checkAbove(folder); !safe)
            return safe;
    }
    if (auto safe = checkOwn(root); !safe)
        return safe;
    // What lies there may be older than the folder's permissions.
    for (const char* part : {"bin", "Library", "run", "usr"}) {
        if (auto safe = checkAllIn(root / part, &checkOwn); !safe)
            return safe;
    }
    for (const char* part : {"Library", "run"}) {
        if (auto safe = checkAllIn(root / part, &checkNoLink); !safe)
            return safe;
    }
    return {};
}

/// Whether there is nothing in the folder yet, or a machine: others have commands of their own
/// where a machine's are put.
Checked checkPurpose(const fs::path& root) {
    std::error_code error;
    if (fs::is_empty(root, error) || fs::exists(lockFile(root), error))
        return {};
    return std::unexpected(root.string() + " holds other files than a machine's");
}

} // namespace

std::expected<fs::path, std::string> prepareRootFolder(const fs::path& name) {
    const fs::path root = SimulatedMac::rootAt(name);
    Checked usable = checkName(root);
    if (usable)
        usable = create(root);
    if (usable)
        usable = checkSafety(root);
    if (usable)
        usable = checkPurpose(root);
    for (const fs::path& folder : machineFolders(root)) {
        if (usable)
            usable = create(folder);
    }
    if (!usable)
        return std::unexpected(std::move(usable.error()));
    return root;
}

std::expected<int, std::string> lockRootFolder(const fs::path& root) {
    const fs::path file = lockFile(root);
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return std::unexpected("cannot open " + file.string() + ": " + std::strerror(errno));
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return descriptor;
    const int error = errno;
    ::close(descriptor);
    if (error == EWOULDBLOCK)
        return std::unexpected("a machine is already running in " + root.string());
    return std::unexpected("cannot lock " + file.string() + ": " + std::strerror(error));
}

} // namespace kestrowind
