// Runs the application, windows and all, through many hours of a Mac's life in some minutes: only
// the time between two samples is shortened. Ends with 0 when nothing has grown and no sample was
// missed.
// usage: kestrowind_soak [hours, 12 unless given] [milliseconds a sample, 20 unless given]

#include "Core/AppState.h"
#include "Core/HelperClient.h"
#include "Core/LocalizedText.h"
#include "KestrowindApp/Scenes.h"
#include "Platform/Platform.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/SMCKit/FourCC.h"
#include "Simulator/Link/SimulatedMac.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/ScriptedHelper.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <malloc.h>
#include <map>
#include <numeric>

// What Qt offers to debuggers. Its header is not installed; the places are part of its interface.
extern quintptr Q_CORE_EXPORT qtHookData[]; // NOLINT

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr auto simulatedInterval = 2s;
constexpr int samplesAnHour = 3600s / simulatedInterval;

/// The objects of Qt that live in this process, timers among them.
std::atomic<long> liveObjects = 0;

/// To be called before the application object is made.
void countLiveObjects() {
    constexpr int addObjectHook = 3;
    constexpr int removeObjectHook = 4;
    using Hook = void (*)(void* object);
    const Hook add = [](void*) { ++liveObjects; };
    const Hook remove = [](void*) { --liveObjects; };
    qtHookData[addObjectHook] = reinterpret_cast<quintptr>(add);
    qtHookData[removeObjectHook] = reinterpret_cast<quintptr>(remove);
}

/// What must not grow, measured while no window exists.
struct Footprint {
    double residentMegabytes = 0;
    double heapMegabytes = 0; ///< in use, without what the allocator keeps
    long objects = 0;
    qsizetype descriptors = 0;
    qsizetype threads = 0;

    static Footprint now() {
        QFile memory(u"/proc/self/statm"_s);
        (void)memory.open(QIODevice::ReadOnly);
        const double pages = memory.readAll().split(' ').value(1).toDouble();
        const struct mallinfo2 heap = ::mallinfo2();
        return {.residentMegabytes = pages * 4096 / 1e6,
                .heapMegabytes = static_cast<double>(heap.uordblks + heap.hblkhd) / 1e6,
                .objects = liveObjects,
                .descriptors =
                    QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System).size(),
                .threads =
                    QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size()};
    }
};

/// A machine with two fans that warms up and cools down, and counts how often it is read.
class Machine {
public:
    Machine() {
        smc->setByte("FNum", 2);
        for (const char* fan : {"F0", "F1"}) {
            for (const char* suffix : {"Ac", "Tg", "Mn"})
                smc->setFloat(std::string(fan) + suffix, 1200);
            smc->setFloat(std::string(fan) + "Mx", 6000);
            smc->setByte(std::string(fan) + "md", 0);
        }
        for (const char* sensor : {"Tp01", "Tp05", "Tg01"})
            smc->setFloat(sensor, 50);
        smc->setCallObserver([this](const SMCParamStruct& record) {
            // The last thing that each tick begins with.
            if (record.key == smcFourCC("FNum") && record.data8 == SMCCommand::readKey)
                ++ticks;
        });
    }
    void liveOn(int sample, const std::vector<double>& targets) {
        const double warmth = 55 + 25 * std::sin(sample / 90.0) + 3 * std::sin(sample / 3.0);
        smc->storeFloat("Tp01", static_cast<float>(warmth));
        smc->storeFloat("Tp05", static_cast<float>(warmth - 4));
        smc->storeFloat("Tg01", static_cast<float>(warmth - 9));
        for (std::size_t fan = 0; fan < std::min<std::size_t>(targets.size(), 2); ++fan)
            smc->storeFloat(fan == 0 ? "F0Ac" : "F1Ac", static_cast<float>(targets[fan]));
    }

    std::shared_ptr<SimulatedSMC> smc = std::make_shared<SimulatedSMC>();
    std::atomic<int> ticks = 0;
};

/// The system's own platform, but for the machine and the helper.
Platform makeSoakPlatform(Machine& machine, ScriptedHelper& helper) {
    Platform platform = makePlatform({});
    platform.smc = [&machine] { return machine.smc; };
    platform.helperConnection = helper.factory();
    platform.systemAppearance = [] { return std::unique_ptr<SystemAppearance>(); };
    return platform;
}

class Soak final : public QObject {
public:
    Soak(int hours, std::chrono::milliseconds interval)
        : m_hours(hours)
        , m_interval(interval)
        , m_helper(interval * 3 / 2)
        , m_platform(makeSoakPlatform(m_machine, m_helper)) {
        auto telemetry = std::make_unique<TelemetryStore>(*m_platform.userDefaults, m_platform.smc);
        auto client = std::make_unique<HelperClient>(
            HelperClient::Environment{.makeConnection = m_platform.helperConnection,
                                      .information = *m_platform.information,
                                      .scriptRunner = *m_platform.scriptRunner,
                                      .callTimeout = interval * 3 / 2});
        auto presets = std::make_unique<PresetStore>(
            2, *m_platform.userDefaults,
            PresetStore::Storage{.folder = m_platform.information->applicationSupportFolder()});
        auto engine = std::make_unique<ControlEngine>(*telemetry, *presets, *client, [this] {
            return std::chrono::system_clock::time_point(m_samples * simulatedInterval);
        });
        m_state = std::make_unique<AppState>(std::move(telemetry), std::move(client),
                                             std::move(presets), std::move(engine));
        m_state->telemetry().onSample(this, [this](const TelemetrySample&) { takeSample(); });
        m_scenes = std::make_unique<Scenes>(*m_state, m_platform);
        m_windows.setInterval(windowTime);
        connect(&m_windows, &QTimer::timeout, this, &Soak::turnWindow);
    }

    void start() {
        m_windows.start();
        turnWindow();
        m_state->telemetry().start(m_interval);
    }
    [[nodiscard]] bool isFine() const { return m_isFine; }

private:
    /// A third of the time with a window; closed, it is freed after five seconds.
    static constexpr std::chrono::milliseconds windowTime{3000};
    /// Until then each section was shown three times, and what is made once has been made.
    static constexpr int warmUpHours = 3;

    void takeSample() {
        ++m_samples;
        m_shortestQueue = std::min(m_shortestQueue, m_machine.ticks - m_samples);
        m_machine.liveOn(m_samples, m_helper.targets);
        changeSomething();
        if (m_samples % samplesAnHour == 0)
            endHour(m_samples / samplesAnHour);
    }

    void changeSomething() {
        using Answer = ScriptedHelper::Answer;
        using Method = ScriptedHelper::Method;
        PresetStore& presets = m_state->presets();
        if (m_samples % 37 == 0) {
            const qsizetype chosen = m_samples / 37 % (presets.presets().size() + 1);
            presets.setActivePresetID(
                chosen == 0 ? std::nullopt : std::optional(presets.presets()[chosen - 1].id));
            m_state->engine().pushSoon();
        }
        if (m_samples % 101 == 0)
            m_state->engine().setQuickBoostPercent(m_samples % 202 == 0 ? 0 : 40);
        if (m_samples % 150 == 0)
            editPresets(presets, m_samples / 150);
        if (m_samples % 411 == 0)
            m_helper.restart();
        if (m_samples % 1000 == 0)
            m_helper.answers = {{Method::setTargets, Answer::silent},
                                {Method::status, Answer::broken}};
        if (m_samples % 1000 == 20)
            m_helper.answers.clear();
    }

    static void editPresets(PresetStore& presets, int number) {
        if (auto last = presets.presets().last(); !presets.canAddPreset()) {
            presets.remove(last);
        } else if (!last.isBuiltIn && number % 2 == 0) {
            last.name = u"Edit %1"_s.arg(number);
            last.curves.first().insert({50.0 + number % 20, 33});
            presets.update(last);
        } else {
            presets.addPreset(u"Preset %1"_s.arg(number));
        }
        if (presets.slotOrder().size() > 2)
            presets.moveSlot(presets.slotOrder().first(), presets.slotOrder().last());
    }

    void turnWindow() {
        const int step = m_windowSteps++ % 3;
        if (step == 0) {
            m_state->openMainWindow()();
            QWindow* window = visibleWindow();
            if (window == nullptr)
                return fail("no window opened");
            QTest::keyClick(window, static_cast<Qt::Key>(Qt::Key_1 + m_windowSteps / 3 % 4),
                            Qt::ControlModifier);
        } else if (step == 1) {
            if (QWindow* window = visibleWindow())
                window->close();
        } else if (visibleWindow() == nullptr) {
            // By the end of this step it is freed.
            QTimer::singleShot(windowTime - 300ms, this,
                               [this] { m_footprints.push_back(Footprint::now()); });
        }
    }
    static QWindow* visibleWindow() {
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            if (window->isVisible())
                return window;
        }
        return nullptr;
    }

    void endHour(int hour) {
        // Memory that is not touched for a while comes and goes: the middle one of the hour counts.
        std::ranges::sort(m_footprints, {}, &Footprint::residentMegabytes);
        if (m_footprints.empty()) {
            fail("no window was closed and freed in hour %d", hour);
            return finish();
        }
        const Footprint now = m_footprints[m_footprints.size() / 2];
        m_footprints.clear();
        if (hour <= std::min(warmUpHours, m_hours))
            m_first = now;
        std::printf("hour %2d: %.1f MB, %.2f MB of heap, %ld objects, %lld descriptors, %lld "
                    "threads\n",
                    hour, now.residentMegabytes, now.heapMegabytes, now.objects,
                    static_cast<long long>(now.descriptors), static_cast<long long>(now.threads));
        std::fflush(stdout);
        // A sample that is missed once is missing for ever: the queue is never empty any more.
        if (const int missing = std::exchange(m_shortestQueue, samplesAnHour))
            fail("%d samples are missing", missing);
        if (hour == m_hours)
            judge(now);
    }

    void judge(const Footprint& last) {
        if (last.residentMegabytes > 1.02 * m_first.residentMegabytes ||
            last.heapMegabytes > 1.02 * m_first.heapMegabytes)
            fail("the memory grew from %.1f to %.1f MB, the heap from %.2f to %.2f MB",
                 m_first.residentMegabytes, last.residentMegabytes, m_first.heapMegabytes,
                 last.heapMegabytes);
        // Presets, and calls that are under way, come and go.
        if (last.objects > m_first.objects + 20)
            fail("the objects grew from %ld to %ld", m_first.objects, last.objects);
        if (last.descriptors > m_first.descriptors || last.threads > m_first.threads)
            fail("descriptors or threads grew");
        if (m_state->telemetry().history().size() != TelemetryStore::historyCapacity)
            fail("the history holds %lld samples",
                 static_cast<long long>(m_state->telemetry().history().size()));
        finish();
    }

    template <class... Values>
    void fail(const char* format, Values... values) {
        m_isFine = false;
        std::fputs("FAILED: ", stdout);
        std::printf(format, values...); // NOLINT(clang-diagnostic-format-security)
        std::fputc('\n', stdout);
    }
    void finish() {
        m_windows.stop();
        QCoreApplication::exit();
    }

    int m_hours;
    std::chrono::milliseconds m_interval;
    Machine m_machine;
    ScriptedHelper m_helper;
    Platform m_platform;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<Scenes> m_scenes;
    QTimer m_windows;
    int m_windowSteps = 0;
    int m_samples = 0;
    int m_shortestQueue = samplesAnHour;
    std::vector<Footprint> m_footprints;
    Footprint m_first;
    bool m_isFine = true;
};

/// A Mac that is only a folder, with the helper's two files in it.
void furnish(const QTemporaryDir& folder) {
    for (const auto& [variable, name] :
         {std::pair("XDG_DATA_HOME", u"data"_s), std::pair("XDG_CONFIG_HOME", u"config"_s),
          std::pair(SimulatedMac::rootVariable, u"mac"_s)})
        qputenv(variable, folder.filePath(name).toLocal8Bit());
    for (const char* path :
         {HelperConstants::daemonPlistPath, HelperConstants::helperInstallPath}) {
        const QString file = folder.filePath(u"mac"_s) + QLatin1StringView(path);
        QDir().mkpath(QFileInfo(file).path());
        if (!QFile(file).open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(file));
    }
}

} // namespace
} // namespace kestrowind

int main(int argc, char* argv[]) {
    using namespace kestrowind;
    const QTemporaryDir folder;
    furnish(folder);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QLoggingCategory::setFilterRules(QStringLiteral("app.kestrowind.*=false"));
    countLiveObjects();
    QCoreApplication::setApplicationName(QStringLiteral("Kestrowind"));
    const QApplication application(argc, argv);
    installLocalizable();

    const QStringList arguments = QCoreApplication::arguments();
    const int hours = arguments.size() > 1 ? arguments.at(1).toInt() : 12;
    const int milliseconds = arguments.size() > 2 ? arguments.at(2).toInt() : 20;
    if (hours < 1 || milliseconds < 1) {
        std::fputs("usage: kestrowind_soak [hours] [milliseconds a sample]\n", stderr);
        return 2;
    }
    Soak soak(hours, std::chrono::milliseconds(milliseconds));
    soak.start();
    QCoreApplication::exec();
    std::puts(soak.isFine() ? "nothing grew" : "something grew");
    return soak.isFine() ? 0 : 1;
}
