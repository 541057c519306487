#include "UI/DesignSystem/DesktopCompositing.h"

namespace kestrowind {

bool isDesktopComposited() {
    return true;
}

} // namespace kestrowind
