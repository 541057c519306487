#include "Core/HelperInstallation.h"
#include "Fuzz/Require.h"
#include "Simulator/ScriptRunner/AdministratorSentence.h"

#include <QStringList>

#include <string_view>

using namespace kestrowind;
using namespace Qt::StringLiterals;

namespace {

/// The parts of a shell's text that lie outside and inside of single quotes by turns.
QStringList byQuotes(QString script) {
    // Nothing that was UTF-8 has a lone surrogate: it stands for a quote among what is quoted.
    const QString quote(QChar(0xD800));
    QStringList parts = script.replace(u"'\\''"_s, quote).split(u'\'');
    return parts.replaceInStrings(quote, u"'"_s);
}

/// What the administrator's shell gets to see of a script.
QString atTheShell(const QString& script) {
    const auto sentence = HelperInstallation::withAdministratorPrivileges(script).toStdString();
    const auto text = parseAdministratorSentence(sentence);
    KESTROWIND_REQUIRE(text);
    KESTROWIND_REQUIRE(*text == script.toStdString());
    return script;
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

    // Between the quotes are the paths as they are, and outside of them is what always is.
    QStringList expected = byQuotes(HelperInstallation::installScript(u"<program>"_s, u"<job>"_s));
    expected.replace(expected.lastIndexOf(u"<job>"_s), job);
    expected.replace(expected.indexOf(u"<program>"_s), program);
    KESTROWIND_REQUIRE(byQuotes(atTheShell(HelperInstallation::installScript(program, job))) ==
                       expected);

    // Any text at all, as a script and as a sentence.
    static_cast<void>(atTheShell(QString::fromUtf8(input)));
    if (const auto text = parseAdministratorSentence(input))
        KESTROWIND_REQUIRE(text->size() <= size);
    return 0;
}
