// A program that is run several times over, to find and to end its own older copies.
// usage: kestrowind_seam_copy terminate|force
// It says "up", and for each line that it reads how many older copies there are; then it ends them
// and says "ended". It goes when its input does.

#include "ThisSystem.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace {

void say(const char* text) {
    std::puts(text);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[]) {
    using namespace kestrowind;

    QGuiApplication application(argc, argv);
    const bool isForcing = QGuiApplication::arguments().value(1) == QLatin1StringView("force");
    const auto applications = ThisSystem::Workspace::applications();
    const auto act = [&] {
        const auto copies = applications->olderCopies(QStringLiteral("app.kestrowind.seam-copy"));
        say(std::to_string(copies.size()).c_str());
        for (const auto& copy : copies)
            isForcing ? copy->forceTerminate() : copy->terminate();
        const auto hasEnded = [](const auto& copy) { return copy->isTerminated(); };
        if (QTest::qWaitFor([&] { return std::ranges::all_of(copies, hasEnded); }, 10'000))
            say("ended");
    };

    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        char bytes[64];
        if (::read(STDIN_FILENO, bytes, sizeof bytes) > 0)
            act();
        else
            QCoreApplication::exit();
    });
    // Once the loop runs, the system knows of the application.
    QTimer::singleShot(0, &application, [] { say("up"); });
    return QCoreApplication::exec();
}
