#include "Helper/FanController.h"
#include "Helper/HangWatchdog.h"
#include "Helper/HelperService.h"
#include "Helper/Linux/ActivatedServer.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/Process/TerminationSignals.h"
#include "Simulator/Helper/MisbehavingListener.h"
#include "Simulator/Link/SMCLink.h"
#include "Simulator/Link/SimulatedMac.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTextStream>
#include <QTimer>

/// The helper, as a process of a simulated Mac.
int main(int argc, char** argv) {
    using namespace kestrowind;

    TerminationSignals signalsToEnd;
    const QCoreApplication application(argc, argv);
    QTextStream errors(stderr);

    const auto root = SimulatedMac::root();
    if (!root) {
        errors << "kestrowind-simulated-helper: only runs inside a simulated Mac\n";
        return 2;
    }
    FanController controller(
        [socket = SimulatedMac::smcSocket(*root)] { return std::make_shared<SMCLink>(socket); });

    ActivatedServer activated;
    MisbehavingListener listener(activated.server(), controller, *root);
    HelperService service(controller, listener,
                          {SimulatedMac::systemPath(*root, HelperConstants::daemonPlistPath),
                           SimulatedMac::systemPath(*root, HelperConstants::helperInstallPath)});
    listener.setService(service);
    if (!activated.open()) {
        errors << "kestrowind-simulated-helper: only launchd can start this program\n";
        return 2;
    }
    QObject::connect(&listener, &BusListener::finished, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    const QSocketNotifier ending(signalsToEnd.descriptor(), QSocketNotifier::Read);
    QObject::connect(&ending, &QSocketNotifier::activated, &application, &QCoreApplication::quit);

    HangWatchdog watchdog;
    QTimer signsOfLife;
    QObject::connect(&signsOfLife, &QTimer::timeout, &application, [&] { watchdog.rearm(); });
    signsOfLife.start(HangWatchdog::interval);
    return QCoreApplication::exec();
}
