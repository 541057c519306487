#include "UI/MenuBar/MenuBarFan.h"

#include "Core/FanFacts.h"
#include "Core/FanReasonText.h"
#include "Core/LocalizedText.h"

namespace kestrowind {

MenuBarFan MenuBarFan::of(const SMCFanReading& fan, const FanReason& reason,
                          qsizetype totalFanCount) {
    const FanFacts facts = FanFacts::of(fan, totalFanCount);
    const QString parked = localized("menuBar.fan.parked");
    const bool showsBar = facts.hasFraction && !facts.isStill;
    return {.index = facts.index,
            .name = facts.name,
            .isParked = facts.isStill,
            .speedText = facts.isStill ? parked : facts.speed,
            .spokenText =
                localized("menuBar.fan.spoken")
                    .arg(facts.name, facts.isStill
                                         ? parked
                                         : localized("menuBar.fan.spokenSpeed").arg(facts.speed)),
            .reason = FanReasonText::sentence(reason),
            .showsBar = showsBar,
            .fraction = showsBar ? facts.fraction : 0};
}

} // namespace kestrowind
