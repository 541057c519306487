#include "Core/PresetFile.h"

#include "Core/LocalizedText.h"
#include "Core/Logging.h"
#include "Core/OneLine.h"
#include "Core/PresetCoding.h"
#include "Platform/DurableFile.h"

#include <algorithm>

namespace kestrowind {
namespace {

std::unexpected<QString> error(const char* key) {
    return std::unexpected(localized(key));
}

bool isInRange(const FanCurvePoint& point) {
    return point.tempC >= FanCurve::lowestTemperature &&
           point.tempC <= FanCurve::highestTemperature && point.percent >= 0 &&
           point.percent <= FanCurve::highestPercent;
}

/// The key of what is wrong with a curve; absent when nothing is.
std::optional<const char*> faultOf(const FanCurve& curve) {
    const QList<FanCurvePoint>& points = curve.points();
    if (points.isEmpty())
        return "presets.import.noPoint";
    if (points.size() > PresetFile::mostPoints)
        return "presets.import.tooMuch";
    if (!std::ranges::all_of(points, isInRange))
        return "presets.import.pointOutOfRange";
    if (!std::ranges::is_sorted(points, {}, &FanCurvePoint::tempC))
        return "presets.import.pointsOutOfOrder";
    return std::nullopt;
}

} // namespace

std::expected<QByteArray, QString> PresetFile::encode(FanPreset preset) {
    preset.isBuiltIn = false;
    auto content = encodePresets({preset});
    if (content)
        return content;
    qCDebug(presetsLog) << "not exported:" << content.error();
    return error("presets.export.notFinite");
}

std::expected<FanPreset, QString> PresetFile::decode(const QByteArray& content) {
    const auto presets = decodePresets(content);
    if (!presets) {
        qCDebug(presetsLog).noquote() << "not imported:" << presets.error();
        return error("presets.import.notAPreset");
    }
    if (presets->size() != 1)
        return error(presets->isEmpty() ? "presets.import.notAPreset" : "presets.import.several");
    FanPreset preset = presets->front();
    preset.name = preset.name.trimmed();
    if (oneLine(preset.name).trimmed().isEmpty())
        return error("presets.import.noName");
    if (preset.curves.isEmpty())
        return error("presets.import.noCurve");
    if (preset.curves.size() > mostCurves || preset.name.size() > longestText ||
        preset.symbolName.size() > longestText)
        return error("presets.import.tooMuch");
    for (const FanCurve& curve : preset.curves) {
        if (const auto fault = faultOf(curve))
            return error(*fault);
    }
    return preset;
}

std::expected<FanPreset, QString> PresetFile::read(const QString& path) {
    const auto content = DurableFile::read(path, largestPresetsFile);
    if (!content)
        return std::unexpected(content.error());
    return decode(*content);
}

} // namespace kestrowind
