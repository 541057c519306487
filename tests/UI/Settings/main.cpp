#include "Core/LocalizedText.h"

#include <QGuiApplication>
#include <gmock/gmock.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    QGuiApplication application(argc, argv);
    kestrowind::installLocalizable();
    return RUN_ALL_TESTS();
}
