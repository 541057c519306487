#pragma once

#include <functional>

namespace kestrowind {

/// Whom the application object asks about being opened again and about its end. Main thread.
class ApplicationDelegate {
public:
    enum class TerminateReply { now, later };

    virtual ~ApplicationDelegate() = default;

    /// The application was opened once more while it runs (a click on its Dock icon). True when the
    /// application object may go on as it would.
    virtual bool applicationShouldHandleReopen(bool hasVisibleWindows) = 0;
    /// After `later` the process goes on until replyToShouldTerminate.
    virtual TerminateReply applicationShouldTerminate() = 0;
};

/// The system's own idea of the running application: what asks it to end, and to show itself again.
/// Belongs to the main thread and is used while the toolkit's application object exists.
class ApplicationObject {
public:
    ApplicationObject() = default;
    ApplicationObject(const ApplicationObject&) = delete;
    ApplicationObject& operator=(const ApplicationObject&) = delete;
    virtual ~ApplicationObject() = default;

    /// The delegate is not owned and must live as long as the event loop runs; without one, being
    /// asked to end ends the process.
    virtual void setDelegate(ApplicationDelegate& delegate) = 0;
    /// Calls back, once, when the system has said how the application was started: at once where it
    /// says nothing, else when the event loop begins. A start of the system's own at login is to
    /// be a quiet one.
    virtual void whenLaunched(const std::function<void(bool isLoginItem)>& launched) {
        launched(false);
    }
    /// Asks the application to end, as its quit command and the system do: the delegate decides.
    virtual void terminate() = 0;
    /// Lets a process end whose delegate had put that off. May not return.
    virtual void replyToShouldTerminate() = 0;
};

} // namespace kestrowind
