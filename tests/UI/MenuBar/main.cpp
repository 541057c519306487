#include "Core/LocalizedText.h"

#include <QGuiApplication>
#include <QtQml/qqmlextensionplugin.h>
#include <gmock/gmock.h>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_MenuBarPlugin)

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    QGuiApplication application(argc, argv);
    kestrowind::installLocalizable();
    return RUN_ALL_TESTS();
}
