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

/// The application: builds the platform, the state and what shows it, and joins their life to the
/// process's. One object a process, on the main thread, while the application object exists.
class KestrowindApp final : public QObject {
    Q_OBJECT

public:
    /// `arguments` without the program's name.
    KestrowindApp(const QStringList& arguments, const LaunchOptions& options);
    ~KestrowindApp() override;

    /// Shows the scenes and runs until the quit path has ended; returns the process's exit status.
    /// Needs a QApplication.
    int run();
    /// Writes the SMC diagnostic dump to standard output.
    void dumpSMCKeys() const;

    /// Asks for the process's end, as the quit command does.
    void terminate();

private:
    // In the order of their making, each relying on those above it.
    Platform m_platform;
    AppState m_appState;
    AppDelegate m_delegate;
    std::optional<TerminationSignals> m_terminationSignals;
    std::unique_ptr<QSocketNotifier> m_terminationNotifier;
    std::unique_ptr<ReadingsPrinter> m_readingsPrinter;
    std::unique_ptr<Scenes> m_scenes; ///< made when the application runs
};

} // namespace kestrowind
