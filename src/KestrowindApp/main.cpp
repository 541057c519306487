#include "Core/LocalizedText.h"
#include "KestrowindApp/KestrowindApp.h"
#include "KestrowindApp/LaunchOptions.h"
#include "Platform/BundleInformation.h"
#include "Platform/Platform.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_CurveEditorPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_CurvesPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_DashboardPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_MainWindowPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_MenuBarPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_PresetsPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_SettingsPlugin)

namespace {

/// A standard descriptor that was closed would be the next socket's or file's number, and what is
/// written for people would go there. Held open for reading, it refuses every write instead.
void holdStandardDescriptors() {
    int descriptor = -1;
    do {
        descriptor = ::open("/dev/null", O_RDONLY);
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    if (descriptor >= 0)
        ::close(descriptor);
}

/// Prints what was asked for and nothing more; absent when the application is to run.
std::optional<int> answerOptions(const kestrowind::LaunchOptions& options) {
    using namespace kestrowind;
    if (options.showsHelp) {
        std::fputs(qPrintable(LaunchOptions::help()), stdout);
        return 0;
    }
    if (options.showsVersion) {
        std::printf("Kestrowind %s (%s)\n", BundleInformation::shortVersion,
                    BundleInformation::buildNumber);
        return 0;
    }
    return std::nullopt;
}

int dump(int argc, char* argv[], const QStringList& arguments,
         const kestrowind::LaunchOptions& options) {
    const QCoreApplication application(argc, argv);
    kestrowind::installLocalizable();
    kestrowind::KestrowindApp(arguments, options).dumpSMCKeys();
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    using namespace kestrowind;

    holdStandardDescriptors();
    // A reader of our output that goes away is told apart by the write, not by sudden death.
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication::setApplicationName(QStringLiteral("Kestrowind"));
    QCoreApplication::setApplicationVersion(QLatin1StringView(BundleInformation::shortVersion));

    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const auto options = LaunchOptions::parse(arguments);
    if (!options) {
        std::fprintf(stderr, "kestrowind: %s\n", qPrintable(options.error()));
        return 2;
    }
    if (const auto status = answerOptions(*options))
        return *status;
    if (options->dumpsSMCKeys)
        return dump(argc, argv, arguments, *options);

    prepareDesktop();
    QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("app.kestrowind"));
    installLocalizable();
    return KestrowindApp(arguments, *options).run();
}
