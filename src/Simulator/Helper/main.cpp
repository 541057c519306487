#include "Shared/Process/TerminationSignals.h"
#include "Simulator/Helper/ActivatedServer.h"
#include "Simulator/Helper/HangWatchdog.h"
#include "Simulator/Helper/HelperService.h"
#include "Simulator/Link/SMCLink.h"
#include "Simulator/Link/SimulatedMac.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTextStream>
#include <QTimer>

int main(int argc, char** argv) {
    kestrowind::TerminationSignals signalsToEnd;
    const QCoreApplication application(argc, argv);
    QTextStream errors(stderr);

    const auto root = kestrowind::SimulatedMac::root();
    if (!root) {
        errors << "kestrowind-simulated-helper: only runs inside a simulated Mac\n";
        return 2;
    }
    kestrowind::FanController controller([socket = kestrowind::SimulatedMac::smcSocket(*root)] {
        return std::make_shared<kestrowind::SMCLink>(socket);
    });

    kestrowind::ActivatedServer activated;
    kestrowind::HelperService service(controller, activated.server(), *root);
    if (!activated.open()) {
        errors << "kestrowind-simulated-helper: only launchd can start this program\n";
        return 2;
    }
    QObject::connect(&service, &kestrowind::HelperService::finished, &application,
                     &QCoreApplication::quit, Qt::QueuedConnection);
    const QSocketNotifier ending(signalsToEnd.descriptor(), QSocketNotifier::Read);
    QObject::connect(&ending, &QSocketNotifier::activated, &application, &QCoreApplication::quit);

    kestrowind::HangWatchdog watchdog;
    QTimer signsOfLife;
    QObject::connect(&signsOfLife, &QTimer::timeout, &application, [&] { watchdog.rearm(); });
    signsOfLife.start(kestrowind::HangWatchdog::interval);
    return QCoreApplication::exec();
}
