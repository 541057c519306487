#include "Simulator/Program/ControlClient.h"
#include "Simulator/Program/SimulatorSession.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int complain(const std::string& message, int status) {
    std::fprintf(stderr, "kestrowind-simulator: %s\n", message.c_str());
    return status;
}

/// Only before the command's own words: those may hold a --help of their own.
bool asksForHelp(const QStringList& arguments) {
    const bool isForControl = arguments.size() == 3 && arguments.at(1) == "ctl"_L1;
    return arguments.value(isForControl ? 2 : 1) == "--help"_L1;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (asksForHelp(arguments)) {
        std::fputs(kestrowind::SimulatorOptions::help().c_str(), stdout);
        return 0;
    }
    if (arguments.value(1) == "ctl"_L1)
        return kestrowind::runControlClient(arguments.mid(2));

    auto options = kestrowind::SimulatorOptions::parse(arguments);
    if (!options)
        return complain(options.error(), 2);
    kestrowind::SimulatorSession session;
    if (const auto started = session.start(std::move(*options)); !started)
        return complain(started.error().message, started.error().status);
    return QCoreApplication::exec();
}
