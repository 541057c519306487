#include "KestrowindApp/LaunchOptions.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

std::expected<LaunchOptions, QString> LaunchOptions::parse(const QStringList& arguments) {
    LaunchOptions options{
        .dumpsSMCKeys = arguments.contains("-DumpSMCKeys"_L1),
        .showsHelp = arguments.contains("-help"_L1) || arguments.contains("--help"_L1),
        .showsVersion = arguments.contains("-version"_L1) || arguments.contains("--version"_L1),
    };
    if (const qsizetype index = arguments.indexOf("-PrintReadings"_L1); index >= 0) {
        const QString format = arguments.value(index + 1);
        if (format == "text"_L1)
            options.readings = ReadingsFormat::text;
        else if (format == "json"_L1)
            options.readings = ReadingsFormat::json;
        else
            return std::unexpected(u"-PrintReadings needs text or json"_s);
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

Every stored setting can be given as a pair of arguments too, for this run only.
)"_s;
}

} // namespace kestrowind
