// The simulated Mac's /usr/bin/osascript, and under their own names the commands that its scripts
// find.
#include "Simulator/Link/SimulatedMac.h"
#include "Simulator/ScriptRunner/AdministratorSentence.h"
#include "Simulator/ScriptRunner/MacCommand.h"
#include "Simulator/Services/ControlCall.h"

#include <QCoreApplication>
#include <QProcess>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;
using MacCommand::Words;

constexpr int usageError = 64;
constexpr int cannotExecute = 126;

int complain(const std::string& message, int status) {
    std::fprintf(stderr, "%s\n", message.c_str());
    return status;
}

// --- osascript ----------------------------------------------------------------------------------

/// An error as the runner words it: where in the script, of what kind, what, and its number.
int scriptError(std::size_t scriptSize, const std::string& what, int number) {
    return complain(
        "0:" + std::to_string(scriptSize) + ": " + what + " (" + std::to_string(number) + ")", 1);
}

QString searchPath(const fs::path& root) {
    QStringList folders;
    for (const std::string_view folder : MacCommand::searchPath)
        folders.append(QString::fromStdString(SimulatedMac::systemPath(root, folder).string()));
    return folders.join(u':');
}

int runShell(const fs::path& root, const std::string& text, std::size_t scriptSize) {
    QProcess shell;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PATH"_s, searchPath(root));
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(u"/"_s);
    shell.setInputChannelMode(QProcess::ManagedInputChannel);
    shell.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    shell.start(u"/bin/sh"_s, {u"-c"_s, QString::fromStdString(text)}, QIODevice::ReadOnly);
    shell.waitForFinished(-1);
    if (shell.error() == QProcess::FailedToStart)
        return scriptError(scriptSize, "execution error: " + shell.errorString().toStdString(),
                           -10810);
    const int status =
        shell.exitStatus() == QProcess::NormalExit ? shell.exitCode() : 128 + shell.exitCode();
    if (status == 0)
        return 0;
    const std::string errors = shell.readAllStandardError().trimmed().toStdString();
    return scriptError(scriptSize,
                       "execution error: " +
                           (errors.empty() ? "The command exited with a non-zero status." : errors),
                       status);
}

int runScript(const fs::path& root, const Words& arguments) {
    if (arguments.size() != 2 || arguments.front() != "-e")
        return complain("usage: osascript -e SCRIPT", usageError);
    const std::string& script = arguments.back();
    const auto text = parseAdministratorSentence(script);
    if (!text)
        return scriptError(script.size(),
                           "syntax error: Expected “do shell script "
                           "\"TEXT\" with administrator privileges”.",
                           -2741);
    // The dialog stays open for as long as the person in front of the machine likes.
    const auto granted = callControl(root, {"authorize"}, endlessPatience);
    if (!granted)
        return scriptError(script.size(), "execution error: " + granted.error(), -60008);
    if (*granted != true)
        return scriptError(script.size(), "execution error: User canceled.", -128);
    return runShell(root, *text, script.size());
}

// --- launchctl ----------------------------------------------------------------------------------

/// launchctl ends with the number in "Bootstrap failed: 5: Input/output error".
int statusIn(const std::string& error) {
    int status = 1;
    if (const auto colon = error.find(": "); colon != std::string::npos)
        std::from_chars(error.data() + colon + 2, error.data() + error.size(), status);
    return status;
}

int runLaunchctl(const fs::path& root, const Words& arguments) {
    Words command;
    constexpr std::string_view domain = "system/";
    if (arguments.size() == 3 && arguments[0] == "bootstrap" && arguments[1] == "system")
        command = {"bootstrap", SimulatedMac::systemPath(root, arguments[2]).string()};
    else if (arguments.size() == 2 && arguments[0] == "bootout" && arguments[1].starts_with(domain))
        command = {"bootout", arguments[1].substr(domain.size())};
    else
        return complain("usage: launchctl bootstrap system FILE | bootout system/LABEL",
                        usageError);
    const auto done = callControl(root, command);
    return done ? 0 : complain(done.error(), statusIn(done.error()));
}

// --- the others ---------------------------------------------------------------------------------

int become(const fs::path& root, const std::string& name, const Words& arguments) {
    const auto command = MacCommand::translate(root, name, arguments);
    if (!command)
        return complain(command.error(), 1);
    std::vector<char*> pointers;
    for (const std::string& word : *command)
        pointers.push_back(const_cast<char*>(word.c_str()));
    pointers.push_back(nullptr);
    // Not by the search path of the script: that leads back here.
    ::execv(("/bin/" + name).c_str(), pointers.data());
    return complain(name + ": " + std::strerror(errno), cannotExecute);
}

int run(const std::string& name, const Words& arguments) {
    const auto root = SimulatedMac::root();
    if (!root)
        return complain(name + ": only runs inside a simulated Mac", 2);
    if (name == "launchctl")
        return runLaunchctl(*root, arguments);
    const auto isName = [&name](std::string_view path) {
        return path.substr(path.rfind('/') + 1) == name;
    };
    if (std::ranges::any_of(MacCommand::paths, isName))
        return become(*root, name, arguments);
    // As an administrator's shell has it.
    ::umask(022);
    return runScript(*root, arguments);
}

} // namespace
} // namespace kestrowind

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::string name = std::filesystem::path(argc > 0 ? argv[0] : "").filename();
    // As they are: Qt takes some options for its own.
    return kestrowind::run(name, {argv + std::min(argc, 1), argv + argc});
}
