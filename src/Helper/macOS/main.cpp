#include "Helper/FanController.h"
#include "Helper/HangWatchdog.h"
#include "Helper/HelperLog.h"
#include "Helper/HelperService.h"
#include "Helper/macOS/PowerEvents.h"
#include "Helper/macOS/XPCListener.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/HelperShared/SigningRequirements.h"
#include "Shared/Process/TerminationSignals.h"
#include "Shared/SMCKit/macOS/IOKitUserClient.h"

#include <cstdlib>
#include <dispatch/dispatch.h>
#include <string>

namespace {

using namespace kestrowind;

/// The privileged program, for as long as its process lives: launchd starts it at boot and again
/// whenever it did not end with success. Everything happens on the main queue.
class Helper {
public:
    Helper() {
        HelperLog::note(std::string("helper ") + HelperConstants::helperVersion + " begins");
        onMainQueue(DISPATCH_SOURCE_TYPE_READ, static_cast<std::uintptr_t>(m_signals.descriptor()),
                    &Helper::end);
        m_signsOfLife = onMainQueue(DISPATCH_SOURCE_TYPE_TIMER, 0, &Helper::rearm);
        constexpr std::chrono::nanoseconds interval = HangWatchdog::interval;
        dispatch_source_set_timer(m_signsOfLife, DISPATCH_TIME_NOW, interval.count(),
                                  interval.count() / 10);
        m_listener.open(m_service, HelperConstants::machServiceName,
                        SigningRequirements::application);
    }

private:
    dispatch_source_t onMainQueue(dispatch_source_type_t type, std::uintptr_t handle,
                                  void (*handler)(void*)) {
        dispatch_source_t source =
            dispatch_source_create(type, handle, 0, dispatch_get_main_queue());
        dispatch_set_context(source, this);
        dispatch_source_set_event_handler_f(source, handler);
        dispatch_resume(source);
        return source;
    }
    static void end(void* self) {
        HelperLog::note("helper ends");
        static_cast<Helper*>(self)->m_service.releaseControl();
        // With success, so that launchd leaves it until somebody calls.
        std::exit(EXIT_SUCCESS);
    }
    static void rearm(void* self) { static_cast<Helper*>(self)->m_watchdog.rearm(); }

    TerminationSignals m_signals;
    FanController m_controller{[] { return std::make_shared<IOKitUserClient>(); }};
    XPCListener m_listener{[this] { end(this); }};
    HelperService m_service{m_controller,
                            m_listener,
                            {HelperConstants::daemonPlistPath, HelperConstants::helperInstallPath}};
    PowerEvents m_powerEvents{m_service};
    HangWatchdog m_watchdog;
    dispatch_source_t m_signsOfLife = nullptr;
};

} // namespace

int main() {
    // Never destroyed: the main queue runs until the process ends, and may use it until then.
    [[maybe_unused]] static const auto* const helper = new Helper;
    dispatch_main();
}
