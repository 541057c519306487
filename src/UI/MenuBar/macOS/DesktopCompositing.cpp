#include "UI/MenuBar/DesktopCompositing.h"

namespace kestrowind {

bool isDesktopComposited() {
    return true;
}

} // namespace kestrowind
