#pragma once

#include <IOKit/pwr_mgt/IOPMLib.h>

namespace kestrowind {

class HelperService;

/// Has the fans handed back before the machine sleeps: the system waits for that. Belongs to the
/// main queue, for the life of the process.
class PowerEvents {
public:
    /// The service must outlive the process's main queue. Where the system refuses, the fans come
    /// back by the heartbeat alone; the log says so.
    explicit PowerEvents(HelperService& service);
    PowerEvents(const PowerEvents&) = delete;
    PowerEvents& operator=(const PowerEvents&) = delete;

private:
    static void happened(void* self, io_service_t service, std::uint32_t message, void* argument);

    HelperService& m_service;
    IONotificationPortRef m_port = nullptr;
    io_object_t m_notifier = IO_OBJECT_NULL;
    io_connect_t m_rootPort = IO_OBJECT_NULL;
};

} // namespace kestrowind
