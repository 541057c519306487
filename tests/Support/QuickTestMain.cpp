#include "Core/LocalizedText.h"

#include <QGuiApplication>
#include <gmock/gmock.h>

#include <utility>

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    // CTest lists the cases outside of their environment.
    for (const auto& [name, value] :
         {std::pair("QT_QPA_PLATFORM", "offscreen"), std::pair("QT_QUICK_BACKEND", "software")}) {
        if (!qEnvironmentVariableIsSet(name))
            qputenv(name, value);
    }
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    kestrowind::installLocalizable();
    return RUN_ALL_TESTS();
}
