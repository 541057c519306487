#include "Helper/HangWatchdog.h"

#include "Shared/HelperShared/HelperConstants.h"

#include <unistd.h>

namespace kestrowind {

static_assert(HangWatchdog::patience < HelperConstants::heartbeatTimeout);

// Nobody handles the alarm's signal: that ends the process.
void HangWatchdog::rearm() {
    ::alarm(static_cast<unsigned>(patience.count()));
}

HangWatchdog::~HangWatchdog() {
    ::alarm(0);
}

} // namespace kestrowind
