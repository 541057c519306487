#include "Shared/HelperShared/HelperStatus.h"

#include <nlohmann/json.hpp>

#include <array>
#include <utility>

namespace kestrowind {
namespace {

using Json = nlohmann::json;

constexpr std::array<std::pair<HelperControlPhase, std::string_view>, 4> phaseTexts{{
    {HelperControlPhase::idle, "idle"},
    {HelperControlPhase::unlocking, "unlocking"},
    {HelperControlPhase::controlling, "controlling"},
    {HelperControlPhase::failed, "failed"},
}};

} // namespace

std::string_view text(HelperControlPhase phase) {
    for (const auto& [known, name] : phaseTexts) {
        if (known == phase)
            return name;
    }
    return "idle";
}

std::optional<HelperControlPhase> helperControlPhase(std::string_view text) {
    for (const auto& [phase, name] : phaseTexts) {
        if (name == text)
            return phase;
    }
    return std::nullopt;
}

std::string encodeHelperStatus(const HelperStatus& status) {
    Json document{{"version", status.version},
                  {"phase", text(status.phase)},
                  {"autoFloors", status.autoFloors},
                  {"effectiveTargets", status.effectiveTargets},
                  {"hottestSensorCelsius", status.hottestSensorCelsius}};
    if (status.lastError)
        document["lastError"] = *status.lastError;
    return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::optional<HelperStatus> decodeHelperStatus(std::string_view document) {
    // The parser would take a null byte for the end.
    if (document.size() > largestHelperStatus || document.contains('\0'))
        return std::nullopt;
    try {
        const Json json = Json::parse(document);
        const auto phase = helperControlPhase(json.at("phase").get_ref<const std::string&>());
        if (!phase)
            return std::nullopt;
        HelperStatus status{.version = json.at("version").get<std::string>(),
                            .phase = *phase,
                            .autoFloors = json.at("autoFloors").get<std::vector<double>>(),
                            .effectiveTargets =
                                json.at("effectiveTargets").get<std::vector<double>>(),
                            .hottestSensorCelsius = json.at("hottestSensorCelsius").get<double>(),
                            .lastError = std::nullopt};
        const auto error = json.find("lastError");
        if (error != json.end() && !error->is_null())
            status.lastError = error->get<std::string>();
        return status;
    } catch (const Json::exception&) {
        return std::nullopt;
    }
}

} // namespace kestrowind
