#include "UI/MenuBar/MenuBarFan.h"

#include "Core/FanNaming.h"
#include "Core/LocalizedText.h"
#include "Core/WholeNumberText.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {

MenuBarFan MenuBarFan::of(const SMCFanReading& fan, int totalFanCount) {
    MenuBarFan row{.name = sharedFanName(fan.index, totalFanCount)};
    row.isParked = fan.actualRPM <= 0;
    if (row.isParked) {
        row.speedText = localized("menuBar.fan.parked");
        row.spokenText = localized("menuBar.fan.spoken").arg(row.name, row.speedText);
        return row;
    }
    row.speedText = WholeNumberText::truncated(fan.actualRPM);
    row.spokenText = localized("menuBar.fan.spoken")
                         .arg(row.name, localized("menuBar.fan.spokenSpeed").arg(row.speedText));
    // Without a highest speed nobody can say how much of it this is.
    row.showsBar = std::isfinite(fan.actualRPM) && std::isfinite(fan.maxRPM) && fan.maxRPM > 0;
    if (row.showsBar)
        row.fraction = std::clamp(fan.actualRPM / fan.maxRPM, 0.0, 1.0);
    return row;
}

} // namespace kestrowind
