#pragma once

#include "Core/AppState.h"
#include "KestrowindApp/AppDelegate.h"
#include "KestrowindApp/LaunchOptions.h"
#include "KestrowindApp/ReadingsPrinter.h"
#include "KestrowindApp/Scenes.h"
#include "Platform/Platform.h"
#include "Shared/Process/TerminationSignals.h"

#include <QObject>
#include <QSocketNotifier>

#include <memory>
#include <optional>

namespace kestrowind {

/// The application: builds the state and what shows it on the platform, and joins their life to the
/// process's. One object a process, on the main thread, while the application object exists.
class KestrowindApp final : public QObject {
    Q_OBJECT

public:
    KestrowindApp(Platform platform, const LaunchOptions& options, ScenesSetup setup = {});
    ~KestrowindApp() override;

    /// Shows the scenes; the event loop, which the quit path ends, is the caller's. Once, and needs
    /// a QApplication.
    void start();
    /// Writes the SMC diagnostic dump to standard output.
    void dumpSMCKeys() const;

    /// Asks for the process's end, as the quit command does.
    void terminate();

private:
    ScenesSetup m_setup;
    // In the order of their making, each relying on those above it.
    Platform m_platform;
    AppState m_appState;
    AppDelegate m_delegate;
    std::optional<TerminationSignals> m_terminationSignals;
    std::unique_ptr<QSocketNotifier> m_terminationNotifier;
    std::unique_ptr<ReadingsPrinter> m_readingsPrinter;
    std::unique_ptr<Scenes> m_scenes; ///< made at the start
};

} // namespace kestrowind
