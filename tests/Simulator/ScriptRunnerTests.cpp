#include "Simulator/BootedMac.h"

#include "Core/HelperInstallation.h"
#include "Simulator/ScriptRunner/AdministratorSentence.h"
#include "Simulator/ScriptRunner/MacCommand.h"

#include <QDir>
#include <QFile>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;
using testing::HasSubstr;

TEST(AdministratorSentence, IsTheOnlyScriptThatIsUnderstood) {
    EXPECT_EQ(parseAdministratorSentence(
                  R"(do shell script "a\\\"\n\r\tb" with administrator privileges)"),
              "a\\\"\n\r\tb");
    for (const char* script : {"", "beep", R"(do shell script "id")",
                               R"(do shell script " with administrator privileges)",
                               R"(do shell script "a\qb" with administrator privileges)",
                               R"(do shell script "a\" with administrator privileges)",
                               R"(do shell script "a" & "b" with administrator privileges)"})
        EXPECT_FALSE(parseAdministratorSentence(script)) << script;
}

TEST(MacCommand, ReachesOnlyIntoTheMachinesLibrary) {
    using Words = MacCommand::Words;
    const auto here = [](const std::string& name, const Words& arguments) {
        return MacCommand::translate("/mac", name, arguments);
    };
    EXPECT_EQ(here("mkdir", {"-p", "/Library/A b"}),
              (Words{"mkdir", "-p", "--", "/mac/Library/A b"}));
    for (const auto& [name, arguments] : std::initializer_list<std::pair<std::string, Words>>{
             {"rm", {"-rf", "/Library/x"}},
             {"rm", {"-f", "/home/x"}},
             {"rm", {"-f", "/Library/../home/x"}},
             {"rm", {"-f", "Library/x"}},
             {"cp", {"/Library/x", "/home/x"}},
             {"chown", {"nobody:wheel", "/Library/x"}},
             {"chmod", {"4755", "/bin/sh"}},
             {"ln", {"/Library/x", "/Library/y"}},
         })
        EXPECT_FALSE(here(name, arguments)) << name;
}

/// The script runner of a running machine, and what the application hands to it.
class ScriptRunnerTest : public testing::Test {
protected:
    Outcome runAppleScript(const QString& script) const {
        const auto runner = SimulatedMac::systemPath(mac.root(), MacCommand::scriptRunnerPath);
        qputenv(SimulatedMac::rootVariable, mac.root().c_str());
        Outcome outcome = runProgram(QString::fromStdString(runner.string()), {u"-e"_s, script});
        qunsetenv(SimulatedMac::rootVariable);
        return outcome;
    }
    Outcome runShell(const QString& text) const {
        return runAppleScript(HelperInstallation::withAdministratorPrivileges(text));
    }

    const BootedMac mac{{}};
};

TEST_F(ScriptRunnerTest, SaysHowAScriptFailedAsTheRealOneDoes) {
    const auto errors = [this](const QString& text) {
        const Outcome outcome = runShell(text);
        EXPECT_EQ(outcome.status, 1);
        return outcome.errors;
    };
    EXPECT_THAT(errors(u"echo 'no luck' >&2; exit 7"_s), HasSubstr("execution error: no luck (7)"));
    EXPECT_THAT(errors(u"exit 9"_s), HasSubstr("exited with a non-zero status. (9)"));
    EXPECT_THAT(errors(u"kill -9 $$"_s), HasSubstr("(137)"));
    EXPECT_THAT(errors(u"ls /"_s), HasSubstr("(127)")) << "no command of this computer";
    EXPECT_THAT(errors(u"launchctl bootout system/nobody"_s),
                HasSubstr("Boot-out failed: 3: No such process (3)"));
    EXPECT_THAT(runAppleScript(u"beep"_s).errors,
                HasSubstr("syntax error: Expected “do shell script"));
}

TEST_F(ScriptRunnerTest, InstallsAndRemovesTheHelper) {
    // From a folder whose name has every character of a keyboard but the slash, the line feed, and
    // some that take more than one byte.
    QString name = u"ä€𝄞\n\t"_s;
    for (char16_t character = u' '; character <= u'~'; ++character)
        name += QChar(character);
    name.remove(u'/');
    const QTemporaryDir bundle;
    const QString folder = bundle.path() + u'/' + name + u'/';
    ASSERT_TRUE(QDir().mkpath(folder));
    QStringList files{HelperInstallation::executableResource(),
                      HelperInstallation::jobDescriptionResource()};
    for (QString& file : files) {
        const QString resource = QStringLiteral(KESTROWIND_BUNDLE_RESOURCES) + u'/' + file;
        file.prepend(folder);
        ASSERT_TRUE(QFile::copy(resource, file)) << file.toStdString();
    }
    const QString install = HelperInstallation::installScript(files[0], files[1]);
    const fs::path program =
        SimulatedMac::systemPath(mac.root(), HelperConstants::helperInstallPath);
    const fs::path job = SimulatedMac::systemPath(mac.root(), HelperConstants::daemonPlistPath);

    Outcome outcome = runShell(install);
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(fs::status(program).permissions(), fs::perms{0755});
    EXPECT_EQ(fs::status(job).permissions(), fs::perms{0644});
    EXPECT_EQ(HelperCaller(mac, u"installed"_s).status().at("phase"), "idle");

    EXPECT_EQ(runShell(HelperInstallation::removalScript()).status, 0);
    EXPECT_FALSE(fs::exists(program) || fs::exists(job));
    EXPECT_EQ(runShell(HelperInstallation::removalScript()).status, 0) << "nothing to remove";

    ASSERT_EQ(mac.control("launchd failing").status, 0);
    outcome = runShell(install);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("Bootstrap failed: 5: Input/output error"));
}

} // namespace
} // namespace kestrowind
