#pragma once

#include <nlohmann/json.hpp>

#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kestrowind {

/// A document does not say what it must; what() begins with the path of the wrong member.
class StrictJsonError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A JSON value together with its path in the document, so that whatever is wrong with it can be
/// said in one line. The document must outlive it. All readers throw StrictJsonError.
class StrictJson {
public:
    explicit StrictJson(const nlohmann::json& json, std::string path = {});

    /// Requires an object that has no other members than these.
    void allowOnly(std::initializer_list<std::string_view> members) const;
    [[nodiscard]] StrictJson at(std::string_view member) const;
    [[nodiscard]] std::optional<StrictJson> find(std::string_view member) const;
    [[nodiscard]] std::vector<StrictJson> elements(std::size_t atMost) const;

    [[nodiscard]] std::string text() const;
    [[nodiscard]] double number(double atLeast, double atMost) const;
    [[nodiscard]] int integer(int atLeast, int atMost) const;

    [[noreturn]] void fail(const std::string& why) const;

private:
    const nlohmann::json& m_json;
    std::string m_path;
};

} // namespace kestrowind
