#pragma once

namespace kestrowind {

/// Whether the desktop shows what lies behind the translucent parts of a window. Costs a question
/// to the window system.
[[nodiscard]] bool isDesktopComposited();

} // namespace kestrowind
