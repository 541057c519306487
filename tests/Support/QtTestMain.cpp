#include "Core/LocalizedText.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    QCoreApplication application(argc, argv);
    kestrowind::installLocalizable();
    return RUN_ALL_TESTS();
}
