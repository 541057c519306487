#pragma once

#include "Platform/ApplicationObject.h"

#include <QCoroTask>
#include <QObject>

#include <chrono>
#include <memory>
#include <vector>

namespace kestrowind {

class AppState;
class RunningApplication;
struct Platform;

/// What the application object asks about the process's life: its start, being opened again, and
/// its end. Belongs to the main thread.
class AppDelegate final : public QObject, public ApplicationDelegate {
    Q_OBJECT

public:
    /// How long an older copy has to end of its own accord.
    static constexpr std::chrono::milliseconds politeWait{2000};

    explicit AppDelegate(Platform& platform);
    ~AppDelegate() override;

    /// Absent until there is something to hand back at the end.
    void setAppState(AppState* appState) { m_appState = appState; }

    void applicationDidFinishLaunching();
    /// True in every case: the application may go on as it would.
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override;
    /// `later` starts the quit path: the fans are released, the helper is shut down, sampling ends,
    /// and then replyToShouldTerminate follows. Asking again meanwhile starts nothing.
    TerminateReply applicationShouldTerminate() override;

Q_SIGNALS:
    void replyToShouldTerminate();

private:
    /// The newest copy wins: older ones are asked to end, and made to after politeWait.
    void replaceAnyOtherRunningInstance();
    QCoro::Task<void> quit(AppState& appState);

    Platform& m_platform;
    AppState* m_appState = nullptr;
    bool m_isTerminating = false;
    std::vector<std::unique_ptr<RunningApplication>> m_olderCopies;
};

} // namespace kestrowind
