#include "Core/CanonicalUuid.h"
#include "Core/LocalizedText.h"
#include "Core/PresetCaption.h"
#include "Core/PresetCoding.h"
#include "Core/PresetFile.h"
#include "Core/PresetStore.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

const FanCurve slope({{30, 0}, {45, 15}, {55, 30}});
const FanCurve storedUnsorted = FanCurve::fromStoredPoints({{50, 40}, {40, 80}});

TEST(FanCurve, EvaluatesToZeroBelowLinearBetweenAndFlatAbove) {
    struct Row {
        FanCurve curve;
        double temperature;
        double percent;
    };
    const Row rows[] = {
        {FanCurve(), 50, 0},
        {slope, 29.9, 0},
        {slope, 30, 0},
        {slope, 37.5, 7.5},
        {slope, 45, 15},
        {slope, 50, 22.5},
        {slope, 80, 30},
        {FanCurve({{20, 100}}), 19, 0},
        {FanCurve({{20, 100}}), 20, 100},
        {storedUnsorted, 45, 0},
        {storedUnsorted, 50, 80},
        {FanCurve({{30, 0}, {40, 10}, {40, 60}, {50, 70}}), 40, 60},
    };
    for (const Row& row : rows)
        EXPECT_DOUBLE_EQ(row.curve.percent(row.temperature), row.percent) << row.temperature;
    // Not a temperature: any answer will do, as long as there is one.
    EXPECT_EQ(slope.percent(std::numeric_limits<double>::quiet_NaN()), 30);
}

TEST(FanCurve, SortsStablyAndInsertsWithinBounds) {
    const QList<FanCurvePoint> sorted{{20, 1}, {40, 2}, {40, 3}, {60, 4}};
    EXPECT_EQ(FanCurve({{40, 2}, {60, 4}, {40, 3}, {20, 1}}).points(), sorted);

    FanCurve curve;
    curve.insert({15, 120});
    curve.insert({130, -5});
    curve.insert({50, 33});
    const QList<FanCurvePoint> inserted{{20, 100}, {50, 33}, {110, 0}};
    EXPECT_EQ(curve.points(), inserted);
}

TEST(FanCurve, MovesAPointOnlyBetweenItsNeighbours) {
    struct Row {
        qsizetype index;
        FanCurvePoint to;
        FanCurvePoint expected;
    };
    const FanCurve original({{40, 10}, {45, 20}, {50, 30}});
    const Row rows[] = {
        {0, {5, 11}, {20, 11}}, {0, {90, 11}, {44, 11}},   {1, {70, 25}, {49, 25}},
        {1, {0, 25}, {41, 25}}, {2, {130, 35}, {110, 35}},
    };
    for (const Row& row : rows) {
        FanCurve curve = original;
        curve.move(row.index, row.to);
        EXPECT_EQ(curve.points().at(row.index), row.expected) << row.index << " " << row.to.tempC;
    }

    struct Crowd {
        FanCurve curve;
        qsizetype index;
        double arrives;
    };
    const FanCurve crowded({{40, 1}, {40.5, 2}, {41, 3}});
    const FanCurve narrow({{40, 1}, {40.5, 2}, {42, 3}});
    for (const auto& [curve, index, arrives] :
         {Crowd{original, -1, 40}, {original, 3, 40}, {crowded, 1, 40.5}, {narrow, 1, 41}}) {
        FanCurve moved = curve;
        moved.move(index, {60, 2});
        EXPECT_EQ(moved.points().at(index == 1 ? 1 : 0).tempC, arrives) << index;
    }
}

TEST(FanCurve, HasRoomTwoDegreesFromEveryPoint) {
    FanCurve curve = slope;
    curve.remove(1);
    for (const auto& [temperature, hasRoom] :
         {std::pair(28.1, false), {28, true}, {31.9, false}, {32, true}, {45, true}, {54, false}})
        EXPECT_EQ(curve.hasRoomAt(temperature), hasRoom) << temperature;
}

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

TEST(PresetCaption, DescribesAutomaticBuiltInsAndTheUsersOwn) {
    const auto builtIns = FanPreset::builtIns(1);
    FanPreset another = builtIns.first();
    another.id = custom.id;
    const std::pair<std::optional<FanPreset>, const char*> rows[] = {
        {std::nullopt, "presets.card.automaticCaption"},
        {custom, "presets.card.customCurveCaption"},
        {builtIns.first(), "presets.card.coolCaption"},
        {builtIns.last(), "presets.card.fullSpeedCaption"},
        {another, "presets.card.builtInCurveCaption"},
    };
    for (const auto& [preset, key] : rows)
        EXPECT_EQ(PresetCaption::text(preset), localized(key));
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
        {": \"fanblades\"", ": \"fanblades\", \"x\": [1, -1, null], \"curves\": []"},
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

FanPreset madeBy(const QString& name, QList<FanCurvePoint> points) {
    return {.id = QUuid::createUuid(),
            .name = name,
            .symbolName = u"wind"_s,
            .curves = {FanCurve::fromStoredPoints(std::move(points))},
            .isBuiltIn = false};
}

QByteArray encoded(const QList<FanPreset>& presets) {
    return encodePresets(presets).value_or("");
}

TEST(PresetFile, TakesWhatItGaveAndNothingThatNoEditorMakes) {
    const FanPreset good = madeBy(u"  Night \n"_s, {{20, 0}, {60, 33.5}, {60, 40}, {110, 100}});
    const auto content = PresetFile::encode(good);
    ASSERT_TRUE(content);
    const auto again = PresetFile::decode(*content);
    ASSERT_TRUE(again) << again.error().toStdString();
    EXPECT_EQ(again->name, u"Night"_s);
    EXPECT_EQ(again->curves, good.curves);
    EXPECT_EQ(again->symbolName, u"wind"_s);

    const auto builtIn = PresetFile::encode(FanPreset::builtIns(2).front());
    ASSERT_TRUE(builtIn);
    EXPECT_FALSE(PresetFile::decode(*builtIn)->isBuiltIn);
    EXPECT_FALSE(PresetFile::encode(madeBy(u"x"_s, {{std::nan(""), 0}})));

    const auto large = [](qsizetype curves, qsizetype points, qsizetype text) {
        FanPreset preset = madeBy(QString(text, u'x'), QList<FanCurvePoint>(points, {50, 50}));
        preset.curves = QList<FanCurve>(curves, preset.curves.front());
        preset.symbolName = preset.name;
        return preset;
    };
    FanPreset longSymbol = good;
    longSymbol.symbolName = QString(PresetFile::longestText + 1, u'x');
    using namespace PresetFile;
    EXPECT_TRUE(decode(encoded({large(mostCurves, mostPoints, longestText)})));
    struct Row {
        QByteArray content;
        const char* error;
    };
    for (const auto& [bad, key] : {
             Row{"", "presets.import.notAPreset"},
             Row{"[]", "presets.import.notAPreset"},
             Row{*content + *content, "presets.import.notAPreset"},
             Row{encoded({good, good}), "presets.import.several"},
             Row{encoded({madeBy(u"\u0001"_s, {{50, 50}})}), "presets.import.noName"},
             Row{encoded({large(0, 1, 1)}), "presets.import.noCurve"},
             Row{encoded({large(mostCurves + 1, 1, 1)}), "presets.import.tooMuch"},
             Row{encoded({large(1, mostPoints + 1, 1)}), "presets.import.tooMuch"},
             Row{encoded({large(1, 1, longestText + 1)}), "presets.import.tooMuch"},
             Row{encoded({longSymbol}), "presets.import.tooMuch"},
             Row{encoded({madeBy(u"x"_s, {})}), "presets.import.noPoint"},
             Row{*content + '\0', "presets.import.notAPreset"},
             Row{encoded({madeBy(u"x"_s, {{19.9, 0}})}), "presets.import.pointOutOfRange"},
             Row{encoded({madeBy(u"x"_s, {{110.1, 0}})}), "presets.import.pointOutOfRange"},
             Row{encoded({madeBy(u"x"_s, {{50, -1}})}), "presets.import.pointOutOfRange"},
             Row{encoded({madeBy(u"x"_s, {{50, 100.5}})}), "presets.import.pointOutOfRange"},
             Row{encoded({madeBy(u"x"_s, {{60, 0}, {50, 10}})}), "presets.import.pointsOutOfOrder"},
         }) {
        const auto decoded = PresetFile::decode(bad);
        ASSERT_FALSE(decoded) << bad.left(200).toStdString();
        EXPECT_EQ(decoded.error(), localized(key)) << bad.left(200).toStdString();
    }
}

TEST(PresetFile, ReadsNothingButAFileOfASaneSize) {
    const TestHome home;
    const QString name = u"preset.json"_s;
    const QByteArray content = encoded({madeBy(u"Night"_s, {{50, 50}})});
    home.write(name, content);
    EXPECT_TRUE(PresetFile::read(home.path(name)));
    home.write(name, content + QByteArray(largestPresetsFile, ' '));
    EXPECT_FALSE(PresetFile::read(home.path(name)));
    EXPECT_FALSE(PresetFile::read(home.path()));
    EXPECT_FALSE(PresetFile::read(u"/dev/zero"_s));
    const auto missing = PresetFile::read(home.path(u"missing"_s));
    ASSERT_FALSE(missing);
    EXPECT_TRUE(missing.error().contains(u"No such file"_s)) << missing.error().toStdString();
}

} // namespace
} // namespace kestrowind
