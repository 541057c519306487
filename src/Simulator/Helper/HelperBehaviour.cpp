#include "Simulator/Helper/HelperBehaviour.h"

#include <nlohmann/json.hpp>

#include <fstream>

namespace kestrowind {
namespace {

using Kind = HelperBehaviour::Kind;

NLOHMANN_JSON_SERIALIZE_ENUM(HelperBehaviour::Kind, {{Kind::normal, "normal"},
                                                     {Kind::silent, "silent"},
                                                     {Kind::hang, "hang"},
                                                     {Kind::late, "late"},
                                                     {Kind::garbage, "garbage"},
                                                     {Kind::fail, "fail"},
                                                     {Kind::version, "version"}})

} // namespace

HelperBehaviour::Kind helperBehaviourKind(std::string_view name) {
    Kind kind = Kind::normal;
    from_json(nlohmann::json(name), kind);
    return kind;
}

HelperBehaviour readHelperBehaviour(const std::filesystem::path& file) {
    std::ifstream stream(file);
    if (!stream)
        return {};
    try {
        const auto json = nlohmann::json::parse(stream);
        return {.kind = helperBehaviourKind(json.at("kind").get<std::string>()),
                .delay = std::chrono::milliseconds(json.value("delayMilliseconds", 0)),
                .text = json.value("text", std::string())};
    } catch (const nlohmann::json::exception&) {
        return {};
    }
}

std::string encodeHelperBehaviour(const HelperBehaviour& behaviour) {
    nlohmann::json kind;
    to_json(kind, behaviour.kind);
    const nlohmann::json json{
        {"kind", kind}, {"delayMilliseconds", behaviour.delay.count()}, {"text", behaviour.text}};
    return json.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace kestrowind
