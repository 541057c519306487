#include "Core/CanonicalUuid.h"
#include "Core/PresetCoding.h"
#include "Core/PresetStore.h"
#include "Support/QtPrinters.h"

#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

const FanPreset custom{.id = QUuid::fromString(u"0f0e0d0c-0b0a-4908-8706-050403020100"_s),
                       .name = u"Wöchentlich \"laut\" 🌀"_s,
                       .symbolName = u"fanblades"_s,
                       .curves = {FanCurve({{55, 0}, {75.5, 50}}), FanCurve()},
                       .isBuiltIn = false};

TEST(FanPreset, BuiltInsAreTheSameAtEveryStart) {
    const auto presets = FanPreset::builtIns(2);
    ASSERT_EQ(presets.size(), 2);
    EXPECT_EQ(uuidText(presets[0].id), u"6E6C0001-0000-4000-8000-000000000001"_s);
    EXPECT_EQ(uuidText(presets[1].id), u"6E6C0002-0000-4000-8000-000000000002"_s);
    EXPECT_EQ(presets[0].percents(64, 1), QList<double>({49}));
    EXPECT_EQ(presets[1].percents(20, 2), QList<double>({100, 100}));
}

TEST(FanPreset, ExtraFansFollowTheLastCurve) {
    FanPreset preset;
    EXPECT_EQ(preset.percents(60, 2), QList<double>({0, 0}));
    preset.curves = {FanCurve({{20, 10}}), FanCurve({{20, 40}})};
    EXPECT_EQ(preset.percents(60, 3), QList<double>({10, 40, 40}));
}

TEST(PresetCoding, RoundTripsWithSortedKeys) {
    const auto content = encodePresets({custom});
    ASSERT_TRUE(content);
    EXPECT_EQ(decodePresets(*content), QList<FanPreset>{custom});
    EXPECT_TRUE(content->contains("\"id\": \"0F0E0D0C-0B0A-4908-8706-050403020100\""));
    EXPECT_LT(content->indexOf("\"curves\""), content->indexOf("\"id\""));
    EXPECT_LT(content->indexOf("\"percent\""), content->indexOf("\"tempC\""));
}

TEST(PresetCoding, KeepsStoredPointsAsTheyAre) {
    const auto presets = decodePresets(
        R"([{"id":"0f0e0d0c-0b0a-4908-8706-050403020100","name":"","symbolName":"","isBuiltIn":false,
             "curves":[{"points":[{"tempC":50,"percent":140},{"tempC":5,"percent":-1}]}],"x":1}])");
    ASSERT_TRUE(presets);
    const QList<FanCurvePoint> stored{{50, 140}, {5, -1}};
    EXPECT_EQ(presets->first().curves.first().points(), stored);
}

TEST(PresetCoding, FailsAsAWhole) {
    const QByteArray whole = *encodePresets({custom});
    const std::pair<QByteArray, QByteArray> damages[] = {
        {"\"symbolName\"", "\"symbol\""},
        {"\"tempC\": 55.0", "\"tempC\": 1e999"},
        {"\"tempC\": 55.0", "\"tempC\": \"55\""},
        {"\"tempC\": 55.0", "\"tempC\": true"},
        {"\"tempC\": 55.0", "\"tempC\": 55.0, \"tempC\": 56.0"},
        {"\"isBuiltIn\": false", "\"isBuiltIn\": 0"},
        {"\"0F0E0D0C-", "\"{0F0E0D0C-"},
        {"\"0F0E0D0C-0B0A", "\"0F0E0D0C0B0A"},
        {"laut", "la\xFFut"},
        {"\"points\": []", "\"points\": {}"},
        {"[\n  {", "{\"presets\": [\n  {"},
        {"]\n", ""},
    };
    for (const auto& [from, to] : damages) {
        QByteArray damaged = whole;
        ASSERT_TRUE(damaged.contains(from)) << from.constData();
        EXPECT_FALSE(decodePresets(damaged.replace(from, to))) << to.constData();
    }

    FanPreset infinite = custom;
    infinite.curves = {FanCurve({{std::numeric_limits<double>::infinity(), 1}})};
    EXPECT_FALSE(encodePresets({infinite}));
}

TEST(PresetSlot, ParsesOnlyItsOwnIdentifiers) {
    const QString lower = u"6e6c0001-0000-4000-8000-000000000001"_s;
    EXPECT_EQ(PresetSlot::fromId(u"automatic"_s), PresetSlot::automatic());
    EXPECT_EQ(PresetSlot::fromId(lower), PresetSlot::preset(FanPreset::coolID));
    EXPECT_EQ(PresetSlot::fromId(lower)->id(), lower.toUpper());
    for (const QString& text : {u"Automatic"_s, u"6E6C0001"_s, u'{' + lower + u'}'})
        EXPECT_EQ(PresetSlot::fromId(text), std::nullopt) << text.toStdString();
}

TEST(PresetSlot, ReconcilesASavedOrderWithWhatExists) {
    const auto automatic = PresetSlot::automatic();
    const auto cool = PresetSlot::preset(FanPreset::coolID);
    const auto full = PresetSlot::preset(FanPreset::fullSpeedID);
    const auto own = PresetSlot::preset(custom.id);
    const auto gone = PresetSlot::preset(QUuid::createUuid());
    using Order = QList<PresetSlot>;
    const auto builtIns = FanPreset::builtIns(1);
    const auto reconciled = &PresetStore::reconciledSlotOrder;
    EXPECT_EQ(reconciled(builtIns, {}), Order({automatic, cool, full}));
    EXPECT_EQ(reconciled(builtIns, {automatic, gone}), Order({automatic, cool, full}));
    EXPECT_EQ(reconciled(builtIns + QList{custom}, {full, automatic}),
              Order({full, automatic, cool, own}));
    EXPECT_EQ(reconciled(builtIns, {cool, full, cool}), Order({cool, full, cool, automatic}));

    const Order order{automatic, cool, full, own};
    const auto moved = [&](const PresetSlot& slot, const PresetSlot& onto) {
        return PresetStore::slotOrder(order, slot, onto);
    };
    EXPECT_EQ(moved(automatic, full), Order({cool, full, automatic, own}));
    EXPECT_EQ(moved(own, cool), Order({automatic, own, cool, full}));
    EXPECT_EQ(moved(cool, cool), order);
    EXPECT_EQ(moved(gone, cool), order);
    EXPECT_EQ(moved(cool, gone), order);
}

} // namespace
} // namespace kestrowind
