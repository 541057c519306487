#include "Core/PresetCoding.h"
#include "Core/PresetStore.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

#include <QDir>
#include <QFile>
#include <gmock/gmock.h>

#include <cerrno>
#include <csignal>
#include <functional>
#include <set>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// What is done to the traced process at its stops before and after each system call: false kills
/// it.
using AtStop = std::function<bool(pid_t)>;

/// Carries a deed out in a process of its own that is stopped at every system call. Absent when
/// the system forbids tracing; else whether the deed came to its end.
std::optional<bool> traced(const std::function<void()>& deed, const AtStop& atStop) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            ::_exit(77);
        std::raise(SIGSTOP);
        deed();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WIFEXITED(status))
        return std::nullopt;
    ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD);
    for (int signal = 0;;) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, signal);
        ::waitpid(child, &status, 0);
        if (WIFEXITED(status) || WIFSIGNALED(status))
            return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        const bool isAtCall = WSTOPSIG(status) == (SIGTRAP | 0x80);
        signal = isAtCall ? 0 : WSTOPSIG(status);
        if (isAtCall && !atStop(child))
            ::kill(child, SIGKILL);
    }
}

class PresetDurabilityTest : public testing::Test {
protected:
    void SetUp() override {
        auto store = makeStore();
        ASSERT_TRUE(store.addPreset(u"First"_s));
        ASSERT_TRUE(store.duplicate(store.presets().first()));
        before = content();
    }

    [[nodiscard]] PresetStore makeStore() { return PresetStore(2, *defaults, storage); }
    [[nodiscard]] QByteArray content() const { return home.content(file); }
    /// Puts the folder back to how it was before the deed, and starts anew.
    void restore() {
        defaults = home.defaults();
        QDir(home.path(u"app"_s)).removeRecursively();
        home.write(file, before);
    }

    /// Changes of a user's presets, from small to large.
    [[nodiscard]] static QList<std::function<void(PresetStore&)>> deeds() {
        QList<std::function<void(PresetStore&)>> all;
        for (const qsizetype length : {1, 300, 5'000, 100'000}) {
            all.append([length](PresetStore& store) { store.addPreset(QString(length, u'n')); });
            all.append([length](PresetStore& store) {
                FanPreset preset = store.presets().at(2);
                preset.name = QString(length, u'é');
                store.update(preset);
            });
        }
        all.append([](PresetStore& store) { store.remove(store.presets().at(2)); });
        return all;
    }
    /// The old or the new presets are there, whole, and nothing was set aside.
    void expectWhole(const QList<FanPreset>& old, std::set<QByteArray>& seen) {
        const QByteArray now = content();
        seen.insert(now);
        const auto decoded = decodePresets(now);
        ASSERT_TRUE(decoded) << decoded.error().toStdString() << now.left(200).toStdString();
        ASSERT_EQ(makeStore().presets(), FanPreset::builtIns(2) + *decoded);
        ASSERT_EQ(*decoded == old, now == before);
        ASSERT_TRUE(QDir(home.path(u"app"_s)).entryList({u"*unreadable*"_s}).isEmpty());
    }

    TestHome home;
    std::unique_ptr<UserDefaults> defaults = home.defaults();
    PresetStore::Storage storage{.folder = home.path(u"app"_s)};
    const QString file = u"app/presets.json"_s;
    QByteArray before;
};

TEST_F(PresetDurabilityTest, HasTheOldOrTheNewPresetsWhereverItIsKilled) {
    const QList<FanPreset> old = *decodePresets(before);
    for (const auto& deed : deeds()) {
        std::set<QByteArray> seen;
        std::optional<bool> ended = false;
        for (int fatalStop = 1; !*ended; ++fatalStop) {
            restore();
            auto store = makeStore();
            int stops = 0;
            ended = traced([&] { deed(store); }, [&](pid_t) { return ++stops != fatalStop; });
            if (!ended)
                GTEST_SKIP() << "tracing is not allowed here";
            ASSERT_NO_FATAL_FAILURE(expectWhole(old, seen)) << "killed at stop " << fatalStop;
        }
        EXPECT_TRUE(seen.contains(before));
        EXPECT_GE(seen.size(), 2U) << "killed late enough, the new ones are there";
    }
}

#if defined(__x86_64__) && defined(__linux__)
TEST_F(PresetDurabilityTest, HasTheOldOrTheNewPresetsWhicheverCallFails) {
    const std::set<unsigned long long> fileCalls{
        SYS_open,  SYS_openat, SYS_write,  SYS_pwrite64, SYS_writev,    SYS_fsync,  SYS_fdatasync,
        SYS_close, SYS_rename, SYS_linkat, SYS_renameat, SYS_renameat2, SYS_unlink, SYS_fchmod,
        SYS_chmod, SYS_mkdir,  SYS_statx,  SYS_lseek,    SYS_ftruncate, SYS_access, SYS_newfstatat};
    const QList<FanPreset> old = *decodePresets(before);
    for (const int error : {EIO, ENOSPC, EROFS, EACCES}) {
        for (const auto& deed : {deeds().first(), deeds().last()}) {
            std::set<QByteArray> seen;
            for (int fatalCall = 1;; ++fatalCall) {
                restore();
                auto store = makeStore();
                int calls = 0;
                bool isEntry = false;
                bool isFailing = false;
                bool isMediumBad = false;
                bool isSynced = false;
                const auto ended =
                    traced([&] { deed(store); },
                           [&](pid_t child) {
                               isEntry = !isEntry;
                               user_regs_struct registers{};
                               ::ptrace(PTRACE_GETREGS, child, nullptr, &registers);
                               const auto call = registers.orig_rax;
                               const bool isSync = call == SYS_fsync || call == SYS_fdatasync;
                               if (isEntry && fileCalls.contains(call) &&
                                   (++calls == fatalCall || (isSync && isMediumBad))) {
                                   isMediumBad = isSync;
                                   isFailing = true;
                                   registers.orig_rax = ~0ULL; // no such call
                                   ::ptrace(PTRACE_SETREGS, child, nullptr, &registers);
                               } else if (!isEntry && isFailing) {
                                   isFailing = false;
                                   registers.rax = static_cast<unsigned long long>(-error);
                                   ::ptrace(PTRACE_SETREGS, child, nullptr, &registers);
                               } else if (!isEntry && isSync) {
                                   isSynced = true;
                               }
                               return true;
                           });
                if (!ended)
                    GTEST_SKIP() << "tracing is not allowed here";
                ASSERT_TRUE(*ended) << "crashed when call " << fatalCall << " failed";
                ASSERT_NO_FATAL_FAILURE(expectWhole(old, seen)) << "call " << fatalCall;
                ASSERT_TRUE(isSynced || content() == before) << "a power cut would leave neither";
                if (calls < fatalCall)
                    break;
            }
            EXPECT_GE(seen.size(), 2U);
        }
    }
}
#endif

} // namespace
} // namespace kestrowind
