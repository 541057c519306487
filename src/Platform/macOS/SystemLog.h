#pragma once

namespace kestrowind {

/// From here on, what the application logs goes to the system's log: the bundle's identifier is the
/// subsystem, and each unit ("engine", "helper-client") a category of it.
void logToSystem();

} // namespace kestrowind
