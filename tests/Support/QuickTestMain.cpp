#include "Core/LocalizedText.h"
#include "Support/ReferencePicture.h"

#include <gmock/gmock.h>
#ifdef QT_WIDGETS_LIB
#include <QApplication>
using Application = QApplication;
#else
#include <QGuiApplication>
using Application = QGuiApplication;
#endif

#include <utility>

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    // CTest lists the cases outside of their environment.
    for (const auto& [name, value] :
         {std::pair("QT_QPA_PLATFORM", "offscreen"), std::pair("QT_QUICK_BACKEND", "software")}) {
        if (!qEnvironmentVariableIsSet(name))
            qputenv(name, value);
    }
    kestrowind::useReferenceFonts();
    Application application(argc, argv);
    Application::setQuitOnLastWindowClosed(false);
    kestrowind::installLocalizable();
    return RUN_ALL_TESTS();
}
