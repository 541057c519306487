#pragma once

#include "Core/FanCurve.h"

#include <QList>
#include <QString>
#include <QUuid>

namespace kestrowind {

/// A named, iconed set of fan curves, one a fan. No preset at all is "automatic": the fans are left
/// to the machine's own control.
struct FanPreset {
    QUuid id;
    QString name;       ///< as shown
    QString symbolName; ///< name of the icon beside it
    QList<FanCurve> curves;
    bool isBuiltIn = false;

    /// Of a name that is typed; copies of copies get longer.
    static constexpr int longestName = 200;

    static const QUuid coolID;
    static const QUuid fullSpeedID;

    /// Cool, then full speed, with their curve once for each fan and their names in the current
    /// locale. Never stored: made anew at every start.
    [[nodiscard]] static QList<FanPreset> builtIns(int fanCount);

    /// The curve a new preset begins with.
    [[nodiscard]] static FanCurve newPresetCurve();

    /// The demand of each fan in percent. Fans beyond the last curve follow the last curve; without
    /// any curve there is no demand.
    [[nodiscard]] QList<double> percents(double temperature, qsizetype fanCount) const;

    bool operator==(const FanPreset&) const = default;
};

[[nodiscard]] size_t qHash(const FanPreset& preset, size_t seed = 0) noexcept;

} // namespace kestrowind
