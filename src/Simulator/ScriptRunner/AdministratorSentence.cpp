#include "Simulator/ScriptRunner/AdministratorSentence.h"

#include <initializer_list>
#include <optional>

namespace kestrowind {
namespace {

std::optional<char> unescaped(char character) {
    switch (character) {
    case '\\':
    case '"':
        return character;
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return std::nullopt;
    }
}

class Parser {
public:
    explicit Parser(std::string_view script)
        : m_script(script) {}

    std::expected<std::string, SentenceError> sentence() {
        if (auto read = words({"do", "shell", "script"}); !read)
            return std::unexpected(read.error());
        auto text = literal();
        if (!text)
            return text;
        if (auto read = words({"with", "administrator", "privileges"}); !read)
            return std::unexpected(read.error());
        skipBlanks();
        if (!isAtEnd())
            return expected("end of script");
        return text;
    }

private:
    using Read = std::expected<void, SentenceError>;

    [[nodiscard]] bool isAtEnd() const { return m_position == m_script.size(); }
    [[nodiscard]] bool isAtBlank() const {
        return !isAtEnd() && (m_script[m_position] == ' ' || m_script[m_position] == '\t');
    }
    void skipBlanks() {
        while (isAtBlank())
            ++m_position;
    }
    [[nodiscard]] std::unexpected<SentenceError> expected(const std::string& what) const {
        return std::unexpected(
            SentenceError{m_position, "Expected " + what + " but found " +
                                          (isAtEnd() ? "end of script" : "something else") + "."});
    }

    Read words(std::initializer_list<std::string_view> wanted) {
        for (const std::string_view word : wanted) {
            skipBlanks();
            if (!m_script.substr(m_position).starts_with(word))
                return expected("“" + std::string(word) + "”");
            m_position += word.size();
            const bool isWhole = isAtEnd() || isAtBlank() || m_script[m_position] == '"';
            if (!isWhole)
                return expected("the end of “" + std::string(word) + "”");
        }
        return {};
    }

    std::expected<std::string, SentenceError> literal() {
        skipBlanks();
        if (isAtEnd() || m_script[m_position] != '"')
            return expected("a text in quotation marks");
        std::string text;
        for (++m_position; !isAtEnd(); ++m_position) {
            const char character = m_script[m_position];
            if (character == '"') {
                ++m_position;
                return text;
            }
            if (character != '\\') {
                text += character;
                continue;
            }
            ++m_position;
            const auto meant = isAtEnd() ? std::nullopt : unescaped(m_script[m_position]);
            if (!meant)
                return expected("a character that a backslash can precede");
            text += *meant;
        }
        return expected("a quotation mark at the end of the text");
    }

    std::string_view m_script;
    std::size_t m_position = 0;
};

} // namespace

std::expected<std::string, SentenceError> parseAdministratorSentence(std::string_view script) {
    return Parser(script).sentence();
}

} // namespace kestrowind
