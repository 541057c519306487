#include "Platform/Linux/LinuxRunningApplications.h"

#include "Simulator/Link/SimulatedMac.h"

#include <QByteArrayView>
#include <QDir>
#include <QFile>

#include <csignal>
#include <optional>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

QByteArray readAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct ProcessFacts {
    QByteArray executableName;
    std::filesystem::path machineRoot; ///< the simulated Mac it runs in, empty outside of one
    quint64 startTicks = 0;            ///< since boot
};

/// Absent for a process that is gone, or that belongs to someone else.
std::optional<ProcessFacts> factsOf(pid_t pid) {
    const QString folder = u"/proc/%1/"_s.arg(pid);
    struct stat owner {};
    if (::stat(QFile::encodeName(folder).constData(), &owner) != 0 || owner.st_uid != ::getuid())
        return std::nullopt;

    ProcessFacts facts;
    // A copy whose file was replaced by a newer build is still a copy.
    QString executable = QFile::symLinkTarget(folder + u"exe"_s);
    executable.remove(u" (deleted)"_s);
    facts.executableName = QFile::encodeName(executable.section(u'/', -1));
    if (facts.executableName.isEmpty())
        return std::nullopt;

    const QByteArray prefix = QByteArray(SimulatedMac::rootVariable) + '=';
    for (const QByteArray& variable : readAll(folder + u"environ"_s).split('\0')) {
        if (variable.startsWith(prefix))
            facts.machineRoot = SimulatedMac::rootAt(variable.mid(prefix.size()).toStdString());
    }

    // The program's name in brackets may hold anything, so fields are counted from its end.
    const QByteArray statistics = readAll(folder + u"stat"_s);
    const QList<QByteArray> fields = statistics.mid(statistics.lastIndexOf(')') + 2).split(' ');
    constexpr qsizetype startTimeField = 19;
    if (fields.size() <= startTimeField)
        return std::nullopt;
    facts.startTicks = fields.at(startTimeField).toULongLong();
    return facts;
}

// The C library's own declarations of these two have no C linkage in Debian 12.
int openProcess(pid_t pid) {
    return static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
}

void sendSignal(int processDescriptor, int signalNumber) {
    ::syscall(SYS_pidfd_send_signal, processDescriptor, signalNumber, nullptr, 0);
}

/// Holds on to the process itself, so that its number's next owner is never signalled.
class LinuxRunningApplication final : public RunningApplication {
public:
    explicit LinuxRunningApplication(int descriptor)
        : m_descriptor(descriptor) {}
    ~LinuxRunningApplication() override { ::close(m_descriptor); }

    void terminate() override { sendSignal(m_descriptor, SIGTERM); }
    void forceTerminate() override { sendSignal(m_descriptor, SIGKILL); }
    [[nodiscard]] bool isTerminated() const override {
        pollfd entry{.fd = m_descriptor, .events = POLLIN, .revents = 0};
        return ::poll(&entry, 1, 0) == 1;
    }

private:
    int m_descriptor;
};

} // namespace

std::vector<std::unique_ptr<RunningApplication>>
LinuxRunningApplications::olderCopies(const QString& /*bundleIdentifier*/) {
    std::vector<std::unique_ptr<RunningApplication>> copies;
    const pid_t own = ::getpid();
    const auto self = factsOf(own);
    if (!self)
        return copies;
    for (const QString& entry : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        bool isNumber = false;
        const pid_t pid = entry.toInt(&isNumber);
        if (!isNumber || pid == own)
            continue;
        // Held before it is looked at: the facts are then those of the process that is held.
        const int descriptor = openProcess(pid);
        if (descriptor < 0)
            continue;
        auto application = std::make_unique<LinuxRunningApplication>(descriptor);
        const auto facts = factsOf(pid);
        const bool isOlderCopy =
            facts && facts->executableName == self->executableName &&
            facts->machineRoot == self->machineRoot &&
            std::pair(facts->startTicks, pid) < std::pair(self->startTicks, own);
        if (isOlderCopy)
            copies.push_back(std::move(application));
    }
    return copies;
}

} // namespace kestrowind
