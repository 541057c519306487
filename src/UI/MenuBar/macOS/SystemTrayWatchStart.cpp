#include "UI/MenuBar/SystemTrayWatch.h"

namespace kestrowind {

// The menu bar is there before any application is.
void SystemTrayWatch::start() {
    look();
}

} // namespace kestrowind
