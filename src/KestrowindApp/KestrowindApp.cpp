#include "KestrowindApp/KestrowindApp.h"

#include "Core/AlertNotifier.h"
#include "Core/SMCDiagnostics.h"
#include "Shared/HelperShared/HelperConstants.h"

#include <cstdio>

namespace kestrowind {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The quit path waits for two calls to the helper.
constexpr std::chrono::seconds terminationPatience = 2 * HelperConstants::callTimeout + 4s;

} // namespace

KestrowindApp::KestrowindApp(Platform platform, const LaunchOptions& options, ScenesSetup setup)
    : m_setup(std::move(setup))
    , m_platform(std::move(platform))
    , m_appState(m_platform)
    , m_delegate(m_platform) {
    m_platform.userDefaults->registerDefault(u"hideDockIconWhenWindowClosed"_s, true);
    registerAlertDefaults(*m_platform.userDefaults);
    connect(&m_delegate, &AppDelegate::replyToShouldTerminate, this, [this] {
        m_platform.activity->setUnderWay(false);
        m_platform.application->replyToShouldTerminate();
    });
    const ControlEngine& engine = m_appState.engine();
    connect(&engine, &ControlEngine::isAtWorkChanged, this,
            [this, &engine] { m_platform.activity->setUnderWay(engine.isAtWork()); });
    if (options.readings) {
        m_readingsPrinter = std::make_unique<ReadingsPrinter>(m_appState, *options.readings);
        // Nobody reads any more: what ran for its readings is done.
        connect(m_readingsPrinter.get(), &ReadingsPrinter::outputClosed, this,
                &KestrowindApp::terminate);
    }
}

KestrowindApp::~KestrowindApp() = default;

void KestrowindApp::start() {
    m_platform.application->setDelegate(m_delegate);
    // Only from here on is there a loop that hears of them; a dump simply ends.
    m_terminationSignals.emplace(terminationPatience);
    m_terminationNotifier = std::make_unique<QSocketNotifier>(m_terminationSignals->descriptor(),
                                                              QSocketNotifier::Read);
    connect(m_terminationNotifier.get(), &QSocketNotifier::activated, this, [this] {
        if (m_terminationSignals->take())
            terminate();
    });
    m_scenes = std::make_unique<Scenes>(m_appState, m_platform, m_setup);
    connect(m_scenes.get(), &Scenes::quitRequested, this, &KestrowindApp::terminate);
    m_platform.application->whenLaunched(
        [this](bool isLoginItem) { m_scenes->present(isLoginItem); });
    // Set from the start, not with the first window: a hidden start has fans to hand back as well.
    m_delegate.setAppState(&m_appState);
    m_delegate.applicationDidFinishLaunching();
}

void KestrowindApp::dumpSMCKeys() const {
    SMCDiagnostics::dump(*m_platform.information, m_platform.smc(), [](const std::string& line) {
        std::fwrite(line.data(), 1, line.size(), stdout);
        std::fputc('\n', stdout);
    });
    std::fflush(stdout);
}

void KestrowindApp::terminate() {
    m_platform.application->terminate();
}

} // namespace kestrowind
