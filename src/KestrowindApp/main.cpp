#include "Core/LocalizedText.h"
#include "KestrowindApp/KestrowindApp.h"
#include "KestrowindApp/LaunchOptions.h"
#include "Platform/BundleInformation.h"

#include <QCoreApplication>

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

} // namespace

int main(int argc, char* argv[]) {
    using namespace kestrowind;

    holdStandardDescriptors();
    // A reader of our output that goes away is told apart by the write, not by sudden death.
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Kestrowind"));
    QCoreApplication::setApplicationVersion(QLatin1StringView(BundleInformation::shortVersion));
    installLocalizable();

    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const auto options = LaunchOptions::parse(arguments);
    if (!options) {
        std::fprintf(stderr, "kestrowind: %s\n", qPrintable(options.error()));
        return 2;
    }
    if (options->showsHelp) {
        std::fputs(qPrintable(LaunchOptions::help()), stdout);
        return 0;
    }
    if (options->showsVersion) {
        std::printf("Kestrowind %s (%s)\n", BundleInformation::shortVersion,
                    BundleInformation::buildNumber);
        return 0;
    }

    KestrowindApp app(arguments, *options);
    if (options->dumpsSMCKeys) {
        app.dumpSMCKeys();
        return 0;
    }
    return app.run();
}
