#include "Core/CanonicalUuid.h"
#include "Core/LocalizedText.h"
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
    for (const auto& [curve, temperature, percent] : {
             Row{FanCurve(), 50, 0},
             Row{slope, 37.5, 7.5},
             Row{slope, 45, 15},
             Row{slope, 50, 22.5},
             Row{slope, 80, 30},
             Row{FanCurve({{20, 100}}), 19, 0},
             Row{FanCurve({{20, 100}}), 20, 100},
             Row{storedUnsorted, 45, 0},
             Row{storedUnsorted, 50, 80},
             Row{FanCurve({{30, 0}, {40, 10}, {40, 60}, {50, 70}}), 40, 60},
         })
        EXPECT_DOUBLE_EQ(curve.percent(temperature), percent) << temperature;
    // Not a temperature: any answer will do, as long as there is one.
    EXPECT_EQ(slope.percent(std::numeric_limits<double>::quiet_NaN()), 30);
}

TEST(FanCurve, SortsStablyAndInsertsWhereThereIsRoom) {
    FanCurve curve({{40, 2}, {60, 4}, {40, 3}, {20, 1}});
    EXPECT_EQ(curve.points(), QList<FanCurvePoint>({{20, 1}, {40, 2}, {40, 3}, {60, 4}}));
    curve.remove(1);
    for (const auto& [temperature, hasRoom] :
         {std::pair(18.1, false), {18, true}, {21.9, false}, {22, true}, {50, true}, {41, false}})
        EXPECT_EQ(curve.hasRoomAt(temperature), hasRoom) << temperature;
    curve.insert({15, 120});
    curve.insert({130, -5});
    curve.insert({50, 33});
    EXPECT_EQ(curve.points(),
              QList<FanCurvePoint>({{20, 1}, {20, 100}, {40, 3}, {50, 33}, {60, 4}, {110, 0}}));
}

TEST(FanCurve, MovesAPointOnlyBetweenItsNeighbours) {
    struct Row {
        FanCurve curve;
        qsizetype index;
        double to;
        double arrives;
    };
    const FanCurve wide({{40, 10}, {45, 20}, {50, 30}});
    const FanCurve crowded({{40, 1}, {40.5, 2}, {41, 3}});
    const FanCurve narrow({{40, 1}, {40.5, 2}, {42, 3}});
    for (const auto& [curve, index, to, arrives] : {
             Row{wide, 0, 5, 20},
             Row{wide, 0, 90, 44},
             Row{wide, 1, 70, 49},
             Row{wide, 1, 0, 41},
             Row{wide, 2, 130, 110},
             Row{crowded, 1, 60, 40.5},
             Row{narrow, 1, 60, 41},
         }) {
        FanCurve moved = curve;
        moved.move(index, {to, 2});
        EXPECT_EQ(moved.points().at(index), FanCurvePoint({arrives, 2})) << index << " to " << to;
    }
    FanCurve kept = wide;
    kept.move(-1, {60, 2});
    kept.move(3, {60, 2});
    EXPECT_EQ(kept, wide);
}

const FanPreset custom{.id = QUuid::fromString(u"0f0e0d0c-0b0a-4908-8706-050403020100"_s),
                       .name = u"Wöchentlich \"laut\" 🌀"_s,
                       .symbolName = u"fanblades"_s,
                       .curves = {FanCurve::fromStoredPoints({{75.5, 140}, {55, 0}, {5, -1}}),
                                  FanCurve()}, // points stay as they are stored
                       .isBuiltIn = false};

TEST(FanPreset, IsTheSameAtEveryStartAndGivesExtraFansTheLastCurve) {
    const auto presets = FanPreset::builtIns(2);
    ASSERT_EQ(presets.size(), 2);
    EXPECT_EQ(uuidText(presets[0].id), u"6E6C0001-0000-4000-8000-000000000001"_s);
    EXPECT_EQ(uuidText(presets[1].id), u"6E6C0002-0000-4000-8000-000000000002"_s);
    EXPECT_EQ(presets[0].percents(64, 1), QList<double>({49}));
    EXPECT_EQ(presets[1].percents(20, 2), QList<double>({100, 100}));
    FanPreset preset;
    EXPECT_EQ(preset.percents(60, 2), QList<double>({0, 0}));
    preset.curves = {FanCurve({{20, 10}}), FanCurve({{20, 40}})};
    EXPECT_EQ(preset.percents(60, 3), QList<double>({10, 40, 40}));
}

TEST(PresetCoding, TakesTheWholeOrNothing) {
    const QByteArray whole = *encodePresets({custom});
    EXPECT_LT(whole.indexOf("\"curves\""), whole.indexOf("\"id\"")) << "sorted";
    EXPECT_EQ(decodePresets(whole), QList<FanPreset>{custom});
    QByteArray foreign = whole;
    foreign.replace("\"id\": \"0F0E0D0C-", "\"more\": 1, \"id\": \"0f0e0d0c-");
    EXPECT_EQ(decodePresets(foreign), QList<FanPreset>{custom});
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
        return encoded({preset});
    };
    const auto pointAt = [](double tempC, double percent) {
        return encoded({madeBy(u"x"_s, {{tempC, percent}})});
    };
    FanPreset longSymbol = good;
    longSymbol.symbolName = QString(PresetFile::longestText + 1, u'x');
    using namespace PresetFile;
    EXPECT_TRUE(decode(large(mostCurves, mostPoints, longestText)));
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
             Row{large(0, 1, 1), "presets.import.noCurve"},
             Row{large(mostCurves + 1, 1, 1), "presets.import.tooMuch"},
             Row{large(1, mostPoints + 1, 1), "presets.import.tooMuch"},
             Row{large(1, 1, longestText + 1), "presets.import.tooMuch"},
             Row{encoded({longSymbol}), "presets.import.tooMuch"},
             Row{encoded({madeBy(u"x"_s, {})}), "presets.import.noPoint"},
             Row{*content + '\0', "presets.import.notAPreset"},
             Row{pointAt(19.9, 0), "presets.import.pointOutOfRange"},
             Row{pointAt(110.1, 0), "presets.import.pointOutOfRange"},
             Row{pointAt(50, -1), "presets.import.pointOutOfRange"},
             Row{pointAt(50, 100.5), "presets.import.pointOutOfRange"},
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
