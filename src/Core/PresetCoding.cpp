#include "Core/PresetCoding.h"

#include "Core/CanonicalUuid.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <set>
#include <vector>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using Json = nlohmann::json;

/// A key given twice would silently lose one of its values.
Json parseWithoutDuplicateKeys(const QByteArray& content) {
    std::vector<std::set<std::string>> keys;
    const auto check = [&keys](int /*depth*/, Json::parse_event_t event, Json& parsed) {
        if (event == Json::parse_event_t::object_start)
            keys.emplace_back();
        else if (event == Json::parse_event_t::object_end)
            keys.pop_back();
        else if (event == Json::parse_event_t::key &&
                 !keys.back().insert(parsed.get<std::string>()).second)
            throw Json::other_error::create(501, "duplicate key " + parsed.dump(), &parsed);
        return true;
    };
    return Json::parse(content.begin(), content.end(), check);
}

QString string(const Json& object, const char* key) {
    return QString::fromStdString(object.at(key).get_ref<const std::string&>());
}

const Json::array_t& array(const Json& value) {
    return value.get_ref<const Json::array_t&>();
}

FanCurve decodeCurve(const Json& object) {
    QList<FanCurvePoint> points;
    for (const Json& point : array(object.at("points")))
        points.append({point.at("tempC").get<double>(), point.at("percent").get<double>()});
    return FanCurve::fromStoredPoints(std::move(points));
}

FanPreset decodePreset(const Json& object) {
    const auto id = parseUuid(string(object, "id"));
    if (!id)
        throw Json::other_error::create(501, "id is no UUID", &object);
    FanPreset preset{.id = *id,
                     .name = string(object, "name"),
                     .symbolName = string(object, "symbolName"),
                     .curves = {},
                     .isBuiltIn = object.at("isBuiltIn").get_ref<const Json::boolean_t&>()};
    for (const Json& curve : array(object.at("curves")))
        preset.curves.append(decodeCurve(curve));
    return preset;
}

Json encodePreset(const FanPreset& preset) {
    Json curves = Json::array();
    for (const FanCurve& curve : preset.curves) {
        Json points = Json::array();
        for (const FanCurvePoint& point : curve.points())
            points.push_back({{"tempC", point.tempC}, {"percent", point.percent}});
        curves.push_back({{"points", std::move(points)}});
    }
    return {{"id", uuidText(preset.id).toStdString()},
            {"name", preset.name.toStdString()},
            {"symbolName", preset.symbolName.toStdString()},
            {"curves", std::move(curves)},
            {"isBuiltIn", preset.isBuiltIn}};
}

bool isFinite(const FanPreset& preset) {
    return std::ranges::all_of(preset.curves, [](const FanCurve& curve) {
        return std::ranges::all_of(curve.points(), [](const FanCurvePoint& point) {
            return std::isfinite(point.tempC) && std::isfinite(point.percent);
        });
    });
}

} // namespace

std::expected<QByteArray, QString> encodePresets(const QList<FanPreset>& presets) {
    Json document = Json::array();
    for (const FanPreset& preset : presets) {
        if (!isFinite(preset))
            return std::unexpected(u"a curve point is not a finite number"_s);
        document.push_back(encodePreset(preset));
    }
    return QByteArray::fromStdString(document.dump(2)) + '\n';
}

std::expected<QList<FanPreset>, QString> decodePresets(const QByteArray& content) {
    try {
        const Json document = parseWithoutDuplicateKeys(content);
        QList<FanPreset> presets;
        for (const Json& object : array(document))
            presets.append(decodePreset(object));
        return presets;
    } catch (const Json::exception& error) {
        return std::unexpected(QString::fromUtf8(error.what()));
    }
}

} // namespace kestrowind
