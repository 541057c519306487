#include "UI/DesignSystem/SceneAppearance.h"

namespace kestrowind {

// The toolkit's palette here is that of a theme, not what the user has chosen.
std::optional<QColor> SceneAppearance::toolkitAccent() {
    return std::nullopt;
}

} // namespace kestrowind
