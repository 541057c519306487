#include "Helper/macOS/PowerEvents.h"

#include "Helper/HelperLog.h"
#include "Helper/HelperService.h"

#include <IOKit/IOMessage.h>
#include <dispatch/dispatch.h>

namespace kestrowind {

PowerEvents::PowerEvents(HelperService& service)
    : m_service(service) {
    m_rootPort = IORegisterForSystemPower(this, &m_port, &PowerEvents::happened, &m_notifier);
    if (m_rootPort == IO_OBJECT_NULL) {
        HelperLog::fault("the system does not tell when it is going to sleep");
        return;
    }
    IONotificationPortSetDispatchQueue(m_port, dispatch_get_main_queue());
}

void PowerEvents::happened(void* self, io_service_t /*service*/, std::uint32_t message,
                           void* argument) {
    auto& events = *static_cast<PowerEvents*>(self);
    const auto allow = [&] {
        IOAllowPowerChange(events.m_rootPort, reinterpret_cast<std::intptr_t>(argument));
    };
    switch (message) {
    case kIOMessageCanSystemSleep:
        allow();
        break;
    case kIOMessageSystemWillSleep:
        events.m_service.systemWillSleep();
        allow();
        break;
    case kIOMessageSystemWillNotSleep:
    case kIOMessageSystemHasPoweredOn:
        events.m_service.systemDidWake();
        break;
    default:
        break;
    }
}

} // namespace kestrowind
