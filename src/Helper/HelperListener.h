#pragma once

#include <cstdint>

namespace kestrowind {

/// Names one connection to the helper for as long as the process lives; never given out twice.
using CallerID = std::uint64_t;

/// How the helper is reached, and the loop that it lives in. An implementation a system: it knows
/// the wire, brings each call to the HelperService on the service's one thread, and makes no
/// decision of its own.
class HelperListener {
public:
    HelperListener() = default;
    HelperListener(const HelperListener&) = delete;
    HelperListener& operator=(const HelperListener&) = delete;
    virtual ~HelperListener() = default;

    /// Ends the connection. May be asked for while it is delivering a call; nothing that it still
    /// brings reaches the service.
    virtual void hangUp(CallerID caller) = 0;

    /// From here on HelperService::tick is called every FanController::tickInterval, or no more.
    virtual void setTicking(bool isTicking) = 0;
};

} // namespace kestrowind
