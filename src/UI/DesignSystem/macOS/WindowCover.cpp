#include "UI/DesignSystem/WindowCover.h"

namespace kestrowind {

// The toolkit follows the system's occlusion state: a covered window is not exposed.
WindowCover* WindowCover::make(QWindow& window) {
    return new WindowCover(window);
}

} // namespace kestrowind
