#include "Support/ReferencePicture.h"
#include "UI/MenuBar/MenuBarIcon.h"
#include "UI/MenuBar/MenuBarLabelImage.h"
#include "UI/TestState.h"

#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(MenuBarReadingTest, SaysTheHottestAndTheFastest) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::tuple<double, std::vector<double>, MenuBarReading> rows[] = {
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

TEST(MenuBarLabelImageTest, LooksLikeItself) {
    QList<QImage> pictures = {MenuBarLabelImage::label({u"72"_s, u"3317"_s}, 1),
                              MenuBarLabelImage::label({u"104"_s, u"0"_s}, 2)};
    const MenuBarReading readings[] = {
        {u"7"_s, u"0"_s}, {u"72"_s, u"3317"_s}, {u"104"_s, u"11111"_s}, {u"--"_s, u"--"_s}};
    for (const MenuBarReading& reading : readings) {
        for (const int side : {16, 22, 44})
            pictures.append(MenuBarLabelImage::square(reading, side, Qt::white));
    }
    pictures.append(MenuBarLabelImage::square(readings[1], 64, Qt::black));
    EXPECT_TRUE(looksLike(u"MenuBar/readings"_s, sideBySide(pictures)));
}

TEST(MenuBarIconTest, IsDrawnAnewOnlyForAnotherKey) {
    const MenuBarReading reading{u"72"_s, u"999"_s};
    MenuBarIcon label(StatusItem::Style::templateLabel);
    ASSERT_TRUE(label.update(reading, 1, ColorScheme::light));
    EXPECT_TRUE(label.icon().isMask());
    EXPECT_FALSE(label.update(reading, 1, ColorScheme::dark));
    EXPECT_TRUE(label.update(reading, 2, ColorScheme::dark));
    EXPECT_TRUE(label.update({u"73"_s, u"999"_s}, 2, ColorScheme::dark));

    MenuBarIcon square(StatusItem::Style::square);
    ASSERT_TRUE(square.update(reading, 1, ColorScheme::light));
    EXPECT_FALSE(square.update(reading, 1, ColorScheme::light));
    EXPECT_TRUE(square.update(reading, 1, ColorScheme::dark));
    EXPECT_FALSE(square.icon().isMask());
    EXPECT_TRUE(square.update(reading, 2, ColorScheme::dark));
    EXPECT_EQ(square.icon().availableSizes(), (QList<QSize>{{44, 44}, {48, 48}, {64, 64}}));
}

} // namespace
} // namespace kestrowind
