#include "Core/LocalizedText.h"
#include "KestrowindApp/KestrowindApp.h"
#include "KestrowindApp/LaunchOptions.h"
#include "Platform/BundleInformation.h"
#include "Platform/Platform.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

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

void showVersion() {
    namespace BundleInformation = kestrowind::BundleInformation;
    std::printf("Kestrowind %s (%s)\n", BundleInformation::shortVersion,
                BundleInformation::buildNumber);
}

void dumpSMCKeys(int argc, char* argv[], const QStringList& arguments,
                 const kestrowind::LaunchOptions& options) {
    const QCoreApplication application(argc, argv);
    kestrowind::installLocalizable();
    kestrowind::KestrowindApp(kestrowind::makePlatform(arguments), options).dumpSMCKeys();
}

int run(int argc, char* argv[], const QStringList& arguments,
        const kestrowind::LaunchOptions& options) {
    kestrowind::prepareDesktop();
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("app.kestrowind"));
    kestrowind::installLocalizable();
    kestrowind::KestrowindApp app(kestrowind::makePlatform(arguments), options);
    app.start();
    return QApplication::exec();
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
    switch (options->task) {
    case LaunchOptions::Task::run:
        return run(argc, argv, arguments, *options);
    case LaunchOptions::Task::dumpSMCKeys:
        dumpSMCKeys(argc, argv, arguments, *options);
        break;
    case LaunchOptions::Task::showHelp:
        std::fputs(qPrintable(LaunchOptions::help()), stdout);
        break;
    case LaunchOptions::Task::showVersion:
        showVersion();
        break;
    }
    return 0;
}
