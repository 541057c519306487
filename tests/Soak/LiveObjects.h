#pragma once

namespace kestrowind::LiveObjects {

/// Counts the objects of Qt, timers among them, that live in this process from here on. To be
/// called before the application object is made.
void startCounting();
[[nodiscard]] long count();

} // namespace kestrowind::LiveObjects
