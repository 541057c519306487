#include "MenuBarState.h"

#include "UI/MenuBar/MenuBarModel.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class MenuBarModelTest : public testing::Test {
protected:
    MenuBarModelTest() { model.setIsFollowing(true); }

    QStringList activeTitles() {
        QStringList titles;
        for (const MenuBarPreset& preset : model.presets()->rows()) {
            if (preset.isActive)
                titles.append(preset.title);
        }
        return titles;
    }

    MenuBarState state;
    MenuBarModel model{state.appState};
};

TEST_F(MenuBarModelTest, DescribesEachFan) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto fan = &MenuBarState::fan;
    struct Row {
        SMCFanReading fan;
        QString speed;
        bool isParked;
        bool showsBar;
        double fraction;
    };
    const Row rows[] = {
        {fan(0, 999.9, 4000), u"999"_s, false, true, 999.9 / 4000},
        {fan(0, 9000, 4000), u"9000"_s, false, true, 1},
        {fan(0, 0.5, 4000), u"0"_s, false, true, 0.5 / 4000},
        {fan(0, 0, 4000), u"Parked"_s, true, false, 0},
        {fan(0, -3, 4000), u"Parked"_s, true, false, 0},
        {fan(0, 2000, 0), u"2000"_s, false, false, 0},
        {fan(0, 2000, nan), u"2000"_s, false, false, 0},
        {fan(0, nan, 4000), u"--"_s, false, false, 0},
    };
    for (const Row& row : rows) {
        state.ingest(50, 50, {row.fan});
        const MenuBarFan& shown = model.fans()->rows().front();
        EXPECT_EQ(shown.name, u"Fan 1"_s);
        EXPECT_EQ(shown.speedText, row.speed);
        EXPECT_EQ(shown.isParked, row.isParked) << qPrintable(shown.speedText);
        EXPECT_EQ(shown.showsBar, row.showsBar) << qPrintable(shown.speedText);
        EXPECT_DOUBLE_EQ(shown.fraction, row.fraction) << qPrintable(shown.speedText);
    }
}

TEST_F(MenuBarModelTest, FollowsTheSamplesInPlaceAndOnlyWhileItShall) {
    EXPECT_TRUE(model.isWaiting());
    QSignalSpy inserted(model.fans(), &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(model.fans(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(model.fans(), &QAbstractItemModel::modelReset);
    QSignalSpy changed(model.fans(), &QAbstractItemModel::dataChanged);
    QSignalSpy readings(&model, &MenuBarModel::readingsChanged);

    const auto fan = &MenuBarState::fan;
    state.ingest(71.5, 71.4, {fan(0, 2000, 6000), fan(1, 2100, 6000)});
    EXPECT_FALSE(model.isWaiting());
    EXPECT_EQ(model.fans()->rows()[1].name, u"Right fan"_s);
    EXPECT_EQ(model.cpu().text, u"72°C"_s);
    EXPECT_EQ(model.gpu().text, u"71°C"_s);
    state.ingest(71.5, 71.4, {fan(0, 2000, 6000), fan(1, 2200, 6000)});
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(inserted.size(), 1);
    EXPECT_EQ(readings.size(), 1);
    state.ingest(71.5, std::numeric_limits<double>::infinity(), {});
    state.ingest(71.5, std::numeric_limits<double>::quiet_NaN(), {});
    EXPECT_EQ(model.gpu().text, u"--°C"_s);
    EXPECT_FALSE(model.gpu().isKnown);
    EXPECT_EQ(readings.size(), 2);
    EXPECT_EQ(removed.size(), 1);
    EXPECT_EQ(model.fans()->rowCount(), 0);

    model.setIsFollowing(false);
    state.ingest(40, 40, {fan(0, 2000, 6000)});
    state.helper.setState(HelperState::notInstalled);
    EXPECT_EQ(model.cpu().text, u"72°C"_s);
    EXPECT_TRUE(model.isHelperInstalled());
    model.setIsFollowing(true);
    EXPECT_EQ(model.cpu().text, u"40°C"_s);
    EXPECT_FALSE(model.isHelperInstalled());
    EXPECT_TRUE(reset.isEmpty());
}

TEST_F(MenuBarModelTest, OffersAutomaticAndEveryPresetInTheStoresOrder) {
    const auto mine = state.presets.addPreset(u"Mine"_s);
    state.presets.moveSlot(PresetSlot::preset(mine->id), PresetSlot::automatic());
    QStringList shown;
    for (const MenuBarPreset& preset : model.presets()->rows())
        shown.append(preset.title + u'/' + preset.symbolName);
    EXPECT_EQ(shown.front(), u"Automatic/gearshape"_s);
    ASSERT_EQ(shown.size(), 4);
    for (qsizetype i = 0; i < state.presets.presets().size(); ++i) {
        const FanPreset& preset = state.presets.presets()[i];
        EXPECT_EQ(shown[i + 1], preset.name + u'/' + preset.symbolName);
    }
    EXPECT_EQ(activeTitles(), QStringList(u"Automatic"_s));

    model.activate(model.presets()->rows().back().slotID);
    EXPECT_EQ(state.presets.activePresetID(), mine->id);
    EXPECT_EQ(activeTitles(), QStringList(u"Mine"_s));
    EXPECT_EQ(model.activePresetIndex(), 3);
    model.activate(u"nonsense"_s);
    EXPECT_EQ(state.presets.activePresetID(), mine->id);
    model.activate(model.presets()->rows().front().slotID);
    EXPECT_EQ(state.presets.activePresetID(), std::nullopt);
    state.presets.setActivePresetID(QUuid::createUuid());
    EXPECT_EQ(activeTitles(), QStringList());
    EXPECT_EQ(model.activePresetIndex(), -1);
}

TEST_F(MenuBarModelTest, TellsWhatTheHelperCanDo) {
    struct Row {
        HelperState helper;
        std::optional<HelperControlPhase> phase;
        bool isInstalled, isTakingControl, isControlUnavailable;
    };
    const Row rows[] = {
        {HelperState::installed, std::nullopt, true, false, false},
        {HelperState::unreachable, HelperControlPhase::controlling, true, false, false},
        {HelperState::installed, HelperControlPhase::unlocking, true, true, false},
        {HelperState::installed, HelperControlPhase::failed, true, false, true},
        {HelperState::notInstalled, HelperControlPhase::idle, false, false, false},
    };
    for (const Row& row : rows) {
        state.helper.setState(row.helper);
        if (row.phase)
            state.setPhase(*row.phase);
        EXPECT_EQ(model.isHelperInstalled(), row.isInstalled);
        EXPECT_EQ(model.isTakingControl(), row.isTakingControl);
        EXPECT_EQ(model.isControlUnavailable(), row.isControlUnavailable);
    }
}

TEST_F(MenuBarModelTest, BoostsInStepsAndStandsStillUnderTheHand) {
    const std::pair<double, double> rows[] = {{37, 35}, {38, 40}, {-4, 0}, {104, 100}, {2.5, 5}};
    for (const auto& [dragged, snapped] : rows) {
        model.setBoost(dragged);
        EXPECT_EQ(state.engine.quickBoostPercent(), snapped) << dragged;
    }
    state.engine.setQuickBoostPercent(62.7);
    EXPECT_EQ(model.boostText(), u"62%"_s);

    model.setIsBoostDragged(true);
    model.setBoost(20);
    state.engine.setQuickBoostPercent(50);
    EXPECT_EQ(model.boostPercent(), 20);
    model.setIsBoostDragged(false);
    EXPECT_EQ(model.boostPercent(), 50);
    EXPECT_TRUE(model.isBoosting());
    state.engine.setQuickBoostPercent(0);
    EXPECT_FALSE(model.isBoosting());
}

TEST_F(MenuBarModelTest, ClosesBeforeItOpensTheMainWindow) {
    QStringList order;
    QObject::connect(&model, &MenuBarModel::dismissRequested, &model,
                     [&] { order.append(u"dismiss"_s); });
    model.openMainWindow();
    state.appState.setOpenMainWindow([&] { order.append(u"open"_s); });
    model.openMainWindow();
    EXPECT_EQ(order, QStringList({u"dismiss"_s, u"dismiss"_s, u"open"_s}));
}

} // namespace
} // namespace kestrowind
