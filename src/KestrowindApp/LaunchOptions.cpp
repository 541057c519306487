#include "KestrowindApp/LaunchOptions.h"

#include "Platform/UserDefaults.h"

#include <QHash>

namespace kestrowind {

using namespace Qt::StringLiterals;

std::expected<LaunchOptions, QString> LaunchOptions::parse(const QStringList& arguments) {
    static const QHash<QString, Task> tasks = {
        {u"-h"_s, Task::showHelp},          {u"-help"_s, Task::showHelp},
        {u"--help"_s, Task::showHelp},      {u"-v"_s, Task::showVersion},
        {u"-version"_s, Task::showVersion}, {u"--version"_s, Task::showVersion},
    };
    static const QHash<QString, ReadingsFormat> formats = {
        {u"text"_s, ReadingsFormat::text},
        {u"json"_s, ReadingsFormat::json},
    };
    LaunchOptions options;
    if (arguments.contains("-DumpSMCKeys"_L1)) {
        options.task = Task::dumpSMCKeys;
        return options;
    }
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& word = arguments.at(i);
        if (const auto task = tasks.constFind(word); task != tasks.cend()) {
            options.task = *task;
            return options;
        }
        // Any other key is a setting's, the toolkit's or the system's: not ours to refuse.
        if (!UserDefaults::isArgumentKey(word) || word.startsWith("--"_L1))
            return std::unexpected(u"\"%1\" is no option; -help lists them"_s.arg(word));
        const QString value = arguments.value(i + 1);
        if (word == "-PrintReadings"_L1) {
            if (!formats.contains(value))
                return std::unexpected(u"-PrintReadings needs text or json"_s);
            options.readings = formats.value(value);
        }
        if (!UserDefaults::isArgumentKey(value))
            ++i;
    }
    return options;
}

QString LaunchOptions::help() {
    return uR"(Usage: kestrowind [-Key value]...

Shows the machine's temperatures and fans, and drives the fans by presets.

  -ActivatePreset NAME        activate this preset, or Automatic, for this run only
  -InitialSection NAME        dashboard, curves, presets or settings
  -StartHidden YES            start in the menu bar without the window
  -ForceColorScheme NAME      light or dark, for the main window
  -CloseMainWindowAfterSeconds N
  -PrintReadings text|json    one line a sample on standard output
  -DumpSMCKeys                write what can be seen in the SMC to standard output and end
  -help, -version             say this, or the version, and end

Every stored setting can be given as a pair of arguments too, for this run only. Of these
-activePresetID alone is stored, as if the preset had been chosen.
)"_s;
}

} // namespace kestrowind
