#include "Core/FanNaming.h"

#include "Core/LocalizedText.h"

namespace kestrowind {

QString sharedFanName(int forIndex, int totalFanCount) {
    if (totalFanCount == 2)
        return localized(forIndex == 0 ? "shared.fan.left" : "shared.fan.right");
    return localized("shared.fan.numbered").arg(forIndex + 1);
}

} // namespace kestrowind
