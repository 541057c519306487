#include "Simulator/Hardware/StrictJson.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace kestrowind {
namespace {

/// A bound as people write it: without trailing zeros.
std::string shortNumber(double value) {
    char digits[32];
    std::snprintf(digits, sizeof digits, "%g", value);
    return digits;
}

} // namespace

StrictJson::StrictJson(const nlohmann::json& json, std::string path)
    : m_json(json)
    , m_path(std::move(path)) {}

void StrictJson::fail(const std::string& why) const {
    throw StrictJsonError(m_path.empty() ? why : m_path + ": " + why);
}

void StrictJson::allowOnly(std::initializer_list<std::string_view> members) const {
    if (!m_json.is_object())
        fail("must be an object");
    for (const auto& [member, value] : m_json.items()) {
        if (std::ranges::find(members, member) == members.end())
            StrictJson(value, m_path.empty() ? member : m_path + "." + member)
                .fail("unknown member");
    }
}

StrictJson StrictJson::at(std::string_view member) const {
    auto found = find(member);
    if (!found)
        fail("member \"" + std::string(member) + "\" is missing");
    return *std::move(found);
}

std::optional<StrictJson> StrictJson::find(std::string_view member) const {
    const auto found = m_json.find(member);
    if (found == m_json.end())
        return std::nullopt;
    const std::string prefix = m_path.empty() ? std::string() : m_path + ".";
    return StrictJson(*found, prefix + std::string(member));
}

std::vector<StrictJson> StrictJson::elements(std::size_t atMost) const {
    if (!m_json.is_array())
        fail("must be an array");
    if (m_json.size() > atMost)
        fail("has " + std::to_string(m_json.size()) + " elements, at most " +
             std::to_string(atMost) + " are possible");
    std::vector<StrictJson> elements;
    for (std::size_t index = 0; index < m_json.size(); ++index)
        elements.emplace_back(m_json[index], m_path + "[" + std::to_string(index) + "]");
    return elements;
}

std::string StrictJson::text() const {
    if (!m_json.is_string())
        fail("must be a text");
    return m_json.get<std::string>();
}

double StrictJson::number(double atLeast, double atMost) const {
    if (!m_json.is_number())
        fail("must be a number");
    const double value = m_json.get<double>();
    if (!(value >= atLeast && value <= atMost))
        fail("must lie between " + shortNumber(atLeast) + " and " + shortNumber(atMost));
    return value;
}

int StrictJson::integer(int atLeast, int atMost) const {
    if (!m_json.is_number_integer())
        fail("must be a whole number");
    return static_cast<int>(number(atLeast, atMost));
}

} // namespace kestrowind
