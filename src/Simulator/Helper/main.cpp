#include "Simulator/Helper/HelperService.h"
#include "Simulator/Helper/ServiceSocket.h"
#include "Simulator/Link/SMCLink.h"
#include "Simulator/Link/SimulatedMac.h"
#include "Simulator/Services/TerminationSignals.h"

#include <QCoreApplication>
#include <QDBusServer>
#include <QTextStream>

using namespace Qt::StringLiterals;

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

    kestrowind::ServiceSocket socket;
    if (!socket.isValid()) {
        errors << "kestrowind-simulated-helper: launchd handed over no socket\n";
        return 2;
    }
    QDBusServer server(u"systemd:"_s);
    if (!server.isConnected()) {
        errors << "kestrowind-simulated-helper: " << server.lastError().message() << '\n';
        return 2;
    }
    kestrowind::HelperService service(controller, server, *root);
    QObject::connect(&service, &kestrowind::HelperService::finished, &application,
                     &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(&signalsToEnd, &kestrowind::TerminationSignals::received, &application,
                     &QCoreApplication::quit);
    signalsToEnd.watch();
    socket.open();
    return QCoreApplication::exec();
}
