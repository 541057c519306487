#include "KestrowindApp/AppDelegate.h"

#include "Core/AppState.h"
#include "Core/Logging.h"
#include "Platform/Platform.h"

#include <QPointer>
#include <QTimer>

#include <utility>

namespace kestrowind {

AppDelegate::AppDelegate(Platform& platform)
    : m_platform(platform) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    replaceAnyOtherRunningInstance();
}

bool AppDelegate::applicationShouldHandleReopen(bool hasVisibleWindows) {
    if (!hasVisibleWindows && m_appState && m_appState->openMainWindow())
        m_appState->openMainWindow()();
    return true;
}

AppDelegate::TerminateReply AppDelegate::applicationShouldTerminate() {
    if (!m_appState)
        return TerminateReply::now;
    if (!m_isTerminating) {
        m_isTerminating = true;
        // Once this has returned: a reply that came before the answer would be lost.
        QMetaObject::invokeMethod(
            this, [this] { quit(*m_appState); }, Qt::QueuedConnection);
    }
    return TerminateReply::later;
}

QCoro::Task<void> AppDelegate::quit(AppState& appState) {
    const QPointer<AppDelegate> self(this);
    co_await appState.engine().shutDown();
    if (!self)
        co_return;
    co_await appState.helper().shutDownDaemon();
    if (!self)
        co_return;
    appState.telemetry().endSampling();
    Q_EMIT self->replyToShouldTerminate();
}

void AppDelegate::replaceAnyOtherRunningInstance() {
    const auto bundleIdentifier = m_platform.information->bundleIdentifier();
    if (!bundleIdentifier)
        return;
    m_olderCopies = m_platform.runningApplications->olderCopies(*bundleIdentifier);
    if (m_olderCopies.empty())
        return;
    qCInfo(shellLog) << "asking" << m_olderCopies.size() << "older copies to end";
    for (const auto& copy : m_olderCopies)
        copy->terminate();
    QTimer::singleShot(politeWait, Qt::PreciseTimer, this, [this] {
        for (const auto& copy : std::exchange(m_olderCopies, {})) {
            if (!copy->isTerminated())
                copy->forceTerminate();
        }
    });
}

} // namespace kestrowind
