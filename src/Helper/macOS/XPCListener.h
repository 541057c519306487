#pragma once

#include "Helper/HelperListener.h"

#include <functional>
#include <memory>

namespace kestrowind {

class HelperService;

/// The helper's end of its Mach service. Connections and their calls arrive on queues of the
/// system's; what they bring is done, in its order, on the main queue, which is the service's
/// thread. All members belong to the main queue.
class XPCListener final : public HelperListener {
public:
    /// finish is called once the reply to the last call has left.
    explicit XPCListener(std::function<void()> finish);
    ~XPCListener() override;

    /// Lets those in who meet the requirement, in the system's language for code; the system turns
    /// everybody else away. The service must outlive the listener.
    void open(HelperService& service, const char* machServiceName, const char* requirement);

    void hangUp(CallerID caller) override;
    void setTicking(bool isTicking) override;

private:
    struct Objects;

    std::unique_ptr<Objects> m_objects; ///< the platform's
};

} // namespace kestrowind
