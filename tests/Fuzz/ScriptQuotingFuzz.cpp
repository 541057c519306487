#include "Core/HelperInstallation.h"
#include "Fuzz/Require.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/ScriptRunner/AdministratorSentence.h"

#include <QString>

#include <string>
#include <string_view>
#include <vector>

using namespace kestrowind;

namespace {

using Words = std::vector<std::string>;

/// The commands that a shell reads in a text which quotes with ' and \' only; of a line with
/// operators, all words.
std::vector<Words> commands(std::string_view text) {
    std::vector<Words> read(1);
    std::string word;
    bool isInWord = false;
    bool isQuoted = false;
    const auto endWord = [&] {
        if (isInWord)
            read.back().push_back(word);
        word.clear();
        isInWord = false;
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\'') {
            isQuoted = !isQuoted;
            isInWord = true;
        } else if (isQuoted) {
            word += text[i];
        } else if (text[i] == ' ' || text[i] == '\n') {
            endWord();
            if (text[i] == '\n')
                read.emplace_back();
        } else {
            if (text[i] == '\\')
                KESTROWIND_REQUIRE(++i < text.size() && text[i] == '\'');
            word += text[i];
            isInWord = true;
        }
    }
    KESTROWIND_REQUIRE(!isQuoted);
    endWord();
    return read;
}

/// What the administrator's shell gets to see of a script.
std::string atTheShell(const QString& script) {
    const auto sentence = HelperInstallation::withAdministratorPrivileges(script).toStdString();
    const auto text = parseAdministratorSentence(sentence);
    KESTROWIND_REQUIRE(text);
    KESTROWIND_REQUIRE(*text == script.toStdString());
    return *text;
}

} // namespace

/// Two paths on their way through the shell's quoting and the script language's: they arrive as two
/// words, and nothing in them becomes a command. The first line feed parts the one from the other.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const auto middle = std::min(input.find('\n'), input.size());
    const QString program = QString::fromUtf8(input.substr(0, middle));
    const QString job =
        QString::fromUtf8(middle < size ? input.substr(middle + 1) : std::string_view());

    const auto lines = commands(atTheShell(HelperInstallation::installScript(program, job)));
    KESTROWIND_REQUIRE(lines.size() == 9);
    const std::string installedProgram = HelperConstants::helperInstallPath;
    const std::string installedJob = HelperConstants::daemonPlistPath;
    KESTROWIND_REQUIRE((lines[2] == Words{"cp", program.toStdString(), installedProgram}));
    KESTROWIND_REQUIRE((lines[5] == Words{"cp", job.toStdString(), installedJob}));
    KESTROWIND_REQUIRE((lines[8] == Words{"launchctl", "bootstrap", "system", installedJob}));

    // Any text at all, as a script and as a sentence.
    static_cast<void>(atTheShell(QString::fromUtf8(input)));
    if (const auto text = parseAdministratorSentence(input))
        KESTROWIND_REQUIRE(text->size() <= size);
    return 0;
}
