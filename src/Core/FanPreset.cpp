#include "Core/FanPreset.h"

#include "Core/LocalizedText.h"

#include <algorithm>

namespace kestrowind {

using namespace Qt::StringLiterals;

const QUuid FanPreset::coolID = QUuid::fromString("6E6C0001-0000-4000-8000-000000000001"_L1);
const QUuid FanPreset::fullSpeedID = QUuid::fromString("6E6C0002-0000-4000-8000-000000000002"_L1);

QList<FanPreset> FanPreset::builtIns(int fanCount) {
    const FanCurve cool({{30, 0}, {45, 15}, {55, 30}, {64, 49}, {72, 73}, {80, 100}});
    const FanCurve fullSpeed({{20, 100}});
    return {
        {coolID, localized("preset.builtIn.cool.name"), u"snowflake"_s,
         QList<FanCurve>(fanCount, cool), true},
        {fullSpeedID, localized("preset.builtIn.fullSpeed.name"), u"wind"_s,
         QList<FanCurve>(fanCount, fullSpeed), true},
    };
}

FanCurve FanPreset::newPresetCurve() {
    return FanCurve({{55, 0}, {75, 50}, {95, 100}});
}

QList<double> FanPreset::percents(double temperature, qsizetype fanCount) const {
    QList<double> percents;
    percents.reserve(fanCount);
    for (qsizetype fan = 0; fan < fanCount; ++fan) {
        const qsizetype curve = std::min(fan, curves.size() - 1);
        percents.append(curve < 0 ? 0 : curves.at(curve).percent(temperature));
    }
    return percents;
}

size_t qHash(const FanPreset& preset, size_t seed) noexcept {
    return qHashMulti(seed, preset.id, preset.name, preset.symbolName,
                      qHashRange(preset.curves.begin(), preset.curves.end(), seed),
                      preset.isBuiltIn);
}

} // namespace kestrowind
