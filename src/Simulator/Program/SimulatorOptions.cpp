#include "Simulator/Program/SimulatorOptions.h"

#include "Simulator/Hardware/ProfileLibrary.h"
#include "Simulator/Services/MachineControl.h"

#include <QCommandLineParser>

namespace kestrowind {

using namespace Qt::StringLiterals;

std::string SimulatorOptions::help() {
    return R"(Usage: kestrowind-simulator [OPTIONS] [--] [COMMAND [ARGUMENTS]]
       kestrowind-simulator ctl [--root DIR] CTL-COMMAND

Boots a simulated Mac, runs COMMAND inside it and ends with COMMAND's exit status; without COMMAND
the machine runs until it is interrupted. COMMAND finds the machine through the environment variable
KESTROWIND_SIMULATED_MAC.

Options:
  --profile NAME-OR-FILE  the model of Mac: a name, or a file as docs/SIMULATED-MAC.md describes
                          (default: )" +
           std::string(ProfileLibrary::defaultName) + R"()
  --load idle|host|NN%    what its processor has to do; host: as much as this computer's
                          (default: idle)
  --root DIR              the folder that holds the machine, created if missing
                          (default: a temporary folder, removed at the end)
  --installed             with the privileged helper installed
  --help                  this text

Profiles: )" +
           ProfileLibrary::names().join(u", "_s).toStdString() +
           R"(

ctl changes a running machine and exits with 0, or with 1 and a message. The root folder may also
come from the environment variable. Its commands:
)" + MachineControl::usage() +
           R"(
Exit status: COMMAND's, 128 and the signal's number if a signal ended it, 127 if it cannot be run,
or 2 when the machine cannot be booted.
)";
}

std::expected<SimulatorOptions, std::string> SimulatorOptions::parse(const QStringList& arguments) {
    const QCommandLineOption profileOption(u"profile"_s, {}, u"NAME-OR-FILE"_s,
                                           QLatin1StringView(ProfileLibrary::defaultName));
    const QCommandLineOption loadOption(u"load"_s, {}, u"LOAD"_s, u"idle"_s);
    const QCommandLineOption rootOption(u"root"_s, {}, u"DIR"_s);
    const QCommandLineOption installedOption(u"installed"_s);
    QCommandLineParser parser;
    // From COMMAND on, everything belongs to it.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions({profileOption, loadOption, rootOption, installedOption});
    if (!parser.parse(arguments))
        return std::unexpected(parser.errorText().toStdString());

    auto profile = ProfileLibrary::load(parser.value(profileOption));
    if (!profile)
        return std::unexpected(std::move(profile.error()));
    const auto load = LoadSource::parse(parser.value(loadOption).toStdString());
    if (!load)
        return std::unexpected("\"" + parser.value(loadOption).toStdString() +
                               "\" is no load: idle, host, or 0% to 100%");
    SimulatorOptions options{.profile = std::move(*profile),
                             .load = *load,
                             .root = {},
                             .isHelperInstalled = parser.isSet(installedOption),
                             .command = {}};
    if (parser.isSet(rootOption)) {
        options.root = parser.value(rootOption).toStdString();
        if (options.root->empty())
            return std::unexpected("--root needs a folder");
    }
    for (const QString& word : parser.positionalArguments())
        options.command.push_back(word.toStdString());
    return options;
}

} // namespace kestrowind
