#include "Core/CanonicalUuid.h"
#include "Core/PresetCoding.h"
#include "Core/PresetStore.h"
#include "Support/QtPrinters.h"
#include "Support/TestDefaults.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class PresetStoreTest : public testing::Test {
protected:
    std::unique_ptr<PresetStore> makeStore(int fanCount = 2) {
        return std::make_unique<PresetStore>(fanCount, *defaults,
                                             PresetStore::Storage{.folder = home.path(u"app"_s)});
    }
    const QString file = u"app/presets.json"_s;
    TestHome home;
    std::unique_ptr<UserDefaults> defaults = home.defaults();
};

TEST_F(PresetStoreTest, KeepsEveryChangeAcrossRestarts) {
    auto store = makeStore();
    QSignalSpy changes(store.get(), &PresetStore::presetsChanged);
    QSignalSpy moves(store.get(), &PresetStore::slotOrderChanged);
    auto first = store->addPreset(u"One"_s);
    const auto second = store->adopt(*first);
    ASSERT_TRUE(first && second);
    EXPECT_NE(second->name, first->name);
    EXPECT_EQ(makeStore()->slotOrder(), store->slotOrder());
    first->name = u"Renamed"_s;
    first->curves = {FanCurve({{60, 60}})};
    store->update(*first);
    EXPECT_EQ(changes.size(), 3);
    store->update(*first);
    EXPECT_EQ(changes.size(), 3);
    EXPECT_EQ(moves.size(), 2);
    store->moveSlot(PresetSlot::preset(second->id), PresetSlot::automatic());
    store->setActivePresetID(first->id);
    const auto order = store->slotOrder();
    EXPECT_EQ(order.first(), PresetSlot::preset(second->id));

    defaults = home.defaults();
    store = makeStore();
    EXPECT_EQ(store->activePreset(), first);
    EXPECT_EQ(store->slotOrder(), order);
    EXPECT_EQ(store->presets(), FanPreset::builtIns(2) + QList({*first, *second}));

    store->remove(*first);
    EXPECT_EQ(store->activePresetID(), std::nullopt);
    EXPECT_EQ(defaults->string(u"activePresetID"_s), std::nullopt);
    EXPECT_EQ(store->slotOrder().size(), 4);
    EXPECT_EQ(makeStore()->presets(), FanPreset::builtIns(2) + QList{*second});
}

TEST_F(PresetStoreTest, HoldsAtMostThreeUserPresetsAndLeavesBuiltInsAndStrangersAlone) {
    EXPECT_EQ(makeStore(-3)->presets().first().curves.size(), 1);
    const auto store = makeStore();
    EXPECT_EQ(store->activePreset(), std::nullopt);
    const FanPreset builtIn = store->presets().first();
    FanPreset changed = builtIn;
    changed.name = u"Mine"_s;
    store->update(changed);
    store->remove(changed);
    changed.id = QUuid::createUuid();
    store->update(changed);
    EXPECT_EQ(store->presets(), FanPreset::builtIns(2));
    EXPECT_FALSE(QFile::exists(home.path(u"app"_s))) << "nothing to write";

    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(store->addPreset(u"P"_s));
    EXPECT_FALSE(store->canAddPreset());
    const QByteArray before = home.content(file);
    QSignalSpy changes(store.get(), &PresetStore::presetsChanged);
    EXPECT_FALSE(store->addPreset(u"P"_s));
    EXPECT_FALSE(store->duplicate(builtIn));
    changed.isBuiltIn = false;
    store->remove(changed);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(home.content(file), before);
    store->remove(store->presets().last());
    EXPECT_TRUE(store->duplicate(builtIn));
}

TEST_F(PresetStoreTest, ActivatesForTheSessionOnly) {
    const auto store = makeStore();
    store->setActivePresetID(FanPreset::fullSpeedID);
    QSignalSpy changes(store.get(), &PresetStore::activePresetIDChanged);
    store->activateForSessionOnly(FanPreset::coolID);
    EXPECT_EQ(store->activePreset()->id, FanPreset::coolID);
    EXPECT_EQ(defaults->string(u"activePresetID"_s), uuidText(FanPreset::fullSpeedID));
    store->setActivePresetID(FanPreset::coolID);
    EXPECT_EQ(defaults->string(u"activePresetID"_s), uuidText(FanPreset::coolID));
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(PresetStoreTest, IgnoresNonsenseInTheDefaultsAndBuiltInsInTheFile) {
    defaults->setString(u"activePresetID"_s, uuidText(QUuid::createUuid()));
    defaults->setStringArray(u"presetSlotOrder"_s, {u"Automatic"_s, u"?"_s, u"automatic"_s});
    EXPECT_EQ(makeStore()->activePresetID(), std::nullopt);
    EXPECT_EQ(makeStore()->slotOrder().size(), 3);
    EXPECT_NE(defaults->string(u"activePresetID"_s), std::nullopt);

    const FanPreset forged = FanPreset::builtIns(1).first();
    const FanPreset own{
        .id = QUuid::createUuid(), .name = u"Own"_s, .symbolName = {}, .curves = {}};
    home.write(file, *encodePresets({forged, own}));
    EXPECT_EQ(makeStore()->presets(), FanPreset::builtIns(2) + QList{own});
}

TEST_F(PresetStoreTest, SetsAsideWhateverItCannotRead) {
    for (const QByteArray& bad : {QByteArray("bad"), QByteArray("worse"), QByteArray("[]\0[", 4),
                                  QByteArray("[]").leftJustified(largestPresetsFile + 1)}) {
        home.write(file, bad);
        const auto store = makeStore();
        ASSERT_TRUE(store->addPreset(u"New"_s) && store->addPreset(u"Next"_s));
        EXPECT_EQ(makeStore()->presets().size(), 4);
    }
    EXPECT_EQ(home.content(file + u".unreadable"_s), "bad") << "which no other takes the place of";
    EXPECT_EQ(home.content(file + u".unreadable-2"_s), "worse");

    QFile::remove(home.path(file));
    QDir().mkpath(home.path(file));
    ASSERT_TRUE(makeStore()->addPreset(u"New"_s));
    makeStore()->addPreset(QString(largestPresetsFile, u'x'));
    EXPECT_EQ(makeStore()->presets().size(), 3) << "nothing is written that could not be read";
    EXPECT_TRUE(QDir(home.path(file) + u".unreadable-5"_s).exists());
}

TEST_F(PresetStoreTest, StartsAtOnceWhateverAmountItFinds) {
    const auto presets = [](int count, int points) {
        const FanPreset preset{.id = QUuid::createUuid(),
                               .curves = {FanCurve(QList<FanCurvePoint>(points))}};
        return *encodePresets(QList<FanPreset>(count, preset));
    };
    defaults->setStringArray(u"presetSlotOrder"_s, QStringList(100'000, u"automatic"_s));
    for (const auto& [content, taken] :
         {std::pair(presets(100, 0), 100),
          {presets(101, 0), 0},
          {presets(1, 1000), 1},
          {presets(1, 1001), 0},
          {QByteArray(",{}").repeated(300'000).replace(0, 1, "["), 0}}) {
        home.write(file, content);
        QElapsedTimer start;
        start.start();
        const auto store = makeStore();
        EXPECT_LT(start.elapsed(), 1000);
        EXPECT_EQ(store->presets().size(), 2 + taken);
        EXPECT_LT(store->slotOrder().size(), 400);
    }
}

} // namespace
} // namespace kestrowind
