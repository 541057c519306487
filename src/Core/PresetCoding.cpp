#include "Core/PresetCoding.h"

#include "Core/CanonicalUuid.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using Json = nlohmann::json;

/// Ends at the first key that an object has twice, or that is no JSON.
class UniqueKeys final : public nlohmann::json_sax<Json> {
public:
    [[nodiscard]] const std::optional<std::string>& duplicate() const { return m_duplicate; }

    bool start_object(std::size_t /*elements*/) override {
        m_keys.emplace_back();
        return true;
    }
    bool key(std::string& key) override {
        if (!m_keys.back().insert(key).second)
            m_duplicate = key;
        return !m_duplicate;
    }
    bool end_object() override {
        m_keys.pop_back();
        return true;
    }
    bool null() override { return true; }
    bool boolean(bool /*value*/) override { return true; }
    bool number_integer(std::int64_t /*value*/) override { return true; }
    bool number_unsigned(std::uint64_t /*value*/) override { return true; }
    bool number_float(double /*value*/, const std::string& /*text*/) override { return true; }
    bool string(std::string& /*value*/) override { return true; }
    bool binary(Json::binary_t& /*value*/) override { return true; }
    bool start_array(std::size_t /*elements*/) override { return true; }
    bool end_array() override { return true; }
    bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                     const Json::exception& /*error*/) override {
        return false;
    }

private:
    std::vector<std::set<std::string>> m_keys; ///< of the open objects
    std::optional<std::string> m_duplicate;
};

/// A key given twice would silently lose one of its values, and a null byte all that follows it.
Json parseAll(const QByteArray& content) {
    if (content.contains('\0'))
        throw Json::other_error::create(501, "null byte", nullptr);
    UniqueKeys keys;
    Json::sax_parse(content, &keys);
    if (keys.duplicate())
        throw Json::other_error::create(501, "duplicate key " + *keys.duplicate(), nullptr);
    return Json::parse(content);
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
        const Json document = parseAll(content);
        QList<FanPreset> presets;
        for (const Json& object : array(document))
            presets.append(decodePreset(object));
        return presets;
    } catch (const Json::exception& error) {
        return std::unexpected(QString::fromUtf8(error.what()));
    }
}

} // namespace kestrowind
