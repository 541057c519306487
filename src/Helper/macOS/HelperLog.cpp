#include "Helper/HelperLog.h"

#include "Shared/HelperShared/HelperConstants.h"

#include <os/log.h>
#include <string>

namespace kestrowind::HelperLog {
namespace {

void write(os_log_type_t type, std::string_view what) {
    static const os_log_t destination = os_log_create(HelperConstants::bundleIdentifier, "helper");
    os_log_with_type(destination, type, "%{public}s", std::string(what).c_str());
}

} // namespace

void note(std::string_view what) {
    write(OS_LOG_TYPE_DEFAULT, what);
}

void fault(std::string_view what) {
    write(OS_LOG_TYPE_ERROR, what);
}

} // namespace kestrowind::HelperLog
