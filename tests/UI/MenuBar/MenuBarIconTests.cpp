#include "UI/MenuBar/MenuBarIcon.h"
#include "UI/MenuBar/MenuBarLabelImage.h"
#include "UI/TestState.h"

#include <QBitmap>
#include <QPainter>
#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(MenuBarReadingTest, SaysTheHottestAndTheFastest) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    struct Row {
        double cpu;
        std::vector<double> speeds;
        MenuBarReading expected;
    };
    const Row rows[] = {
        {71.5, {999.9, 500}, {u"72"_s, u"999"_s}}, {71.4, {}, {u"71"_s, u"0"_s}},
        {-0.4, {-0.5}, {u"0"_s, u"0"_s}},          {60, {nan, 1234}, {u"60"_s, u"1234"_s}},
        {60, {nan}, {u"60"_s, u"--"_s}},           {60, {1e19}, {u"60"_s, u"1000000000000000"_s}},
        {0, {2000}, {u"--"_s, u"2000"_s}}, // no sensor
    };
    for (const auto& [cpu, speeds, expected] : rows) {
        TestState state;
        EXPECT_EQ(MenuBarReading::of(state.telemetry()), (MenuBarReading{u"--"_s, u"--"_s}));
        state.telemetry().ingest(sampleAt(0, cpu, cpu, speeds));
        EXPECT_EQ(MenuBarReading::of(state.telemetry()), expected) << cpu;
    }
}

/// Around what is drawn; an edge drawn more faintly does not count.
QRect inked(const QImage& image) {
    return QRegion(QBitmap::fromImage(image.createAlphaMask(Qt::ThresholdAlphaDither)))
        .boundingRect();
}

TEST(MenuBarLabelImageTest, DrawsTwoCentredLinesInBlackAlone) {
    const QImage once = MenuBarLabelImage::label(u"72°C"_s, u"3317 rpm"_s, 1);
    const QImage twice = MenuBarLabelImage::label(u"72°C"_s, u"3317 rpm"_s, 2);
    EXPECT_EQ(twice.size(), once.size() * 2);
    QImage black = twice;
    QPainter painter(&black);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(black.rect(), Qt::black);
    painter.end();
    EXPECT_EQ(black, twice);
    const int half = twice.height() / 2;
    for (const int top : {0, half}) {
        const QRect ink = inked(twice.copy(0, top, twice.width(), half));
        EXPECT_NEAR(ink.left(), twice.width() - 1 - ink.right(), 4);
    }
}

TEST(MenuBarLabelImageTest, FitsEveryNumberIntoTheSquare) {
    const MenuBarReading readings[] = {
        {u"7"_s, u"0"_s}, {u"72"_s, u"3317"_s}, {u"104"_s, u"11111"_s}, {u"--"_s, u"--"_s}};
    for (const MenuBarReading& reading : readings) {
        for (const int side : {16, 22, 24, 44, 64}) {
            const QImage image = MenuBarLabelImage::square(reading, side, Qt::white);
            ASSERT_EQ(image.size(), QSize(side, side));
            const QRect ink = inked(image);
            EXPECT_GT(ink.top(), 0) << side;
            EXPECT_LT(ink.bottom(), side - 1) << side;
            EXPECT_NEAR(ink.left(), side - 1 - ink.right(), 1 + side / 8) << side;
        }
    }
}

TEST(MenuBarIconTest, IsDrawnAnewOnlyForAnotherKey) {
    const MenuBarReading reading{u"72"_s, u"999"_s};
    MenuBarIcon label(MenuBarIcon::Style::templateLabel);
    ASSERT_TRUE(label.update(reading, 1, ColorScheme::light));
    EXPECT_TRUE(label.icon().isMask());
    EXPECT_FALSE(label.update(reading, 1, ColorScheme::dark));
    EXPECT_TRUE(label.update(reading, 2, ColorScheme::dark));
    EXPECT_TRUE(label.update({u"73"_s, u"999"_s}, 2, ColorScheme::dark));

    MenuBarIcon square(MenuBarIcon::Style::square);
    ASSERT_TRUE(square.update(reading, 1, ColorScheme::light));
    EXPECT_FALSE(square.update(reading, 1, ColorScheme::light));
    EXPECT_TRUE(square.update(reading, 1, ColorScheme::dark));
    EXPECT_FALSE(square.icon().isMask());
}

} // namespace
} // namespace kestrowind
