#include "Support/QtPrinters.h"
#include "UI/MenuBar/MenuBarModel.h"
#include "UI/TestState.h"

#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class MenuBarModelTest : public testing::Test {
protected:
    MenuBarModelTest() { model.setIsFollowing(true); }

    void ingest(const TelemetrySample& sample) { state.telemetry().ingest(sample); }

    TestState state;
    MenuBarModel model{*state.appState};
};

TEST_F(MenuBarModelTest, DescribesEachFan) {
    struct Row {
        double speed, maxRPM;
        QString text;
        bool isParked, showsBar;
        double fraction;
    };
    for (const auto& [speed, maxRPM, text, isParked, showsBar, fraction] : {
             Row{999.9, 4000, u"999"_s, false, true, 999.9 / 4000},
             Row{0, 4000, u"Parked"_s, true, false, 0},
             Row{2000, 0, u"2000"_s, false, false, 0},
         }) {
        ingest(sampleAt(0, 50, 50, {speed}, maxRPM));
        const MenuBarFan& shown = model.fans()->rows().front();
        EXPECT_EQ(shown.speedText, text);
        EXPECT_EQ(shown.isParked, isParked) << speed;
        EXPECT_EQ(shown.showsBar, showsBar) << speed;
        EXPECT_DOUBLE_EQ(shown.fraction, fraction) << speed;
    }
}

TEST_F(MenuBarModelTest, FollowsTheSamplesInPlaceAndOnlyWhileItShall) {
    EXPECT_TRUE(model.isWaiting());
    QSignalSpy changed(model.fans(), &QAbstractItemModel::dataChanged);
    QSignalSpy readings(&model, &MenuBarModel::readingsChanged);

    ingest(sampleAt(0, 71.5, 71.4, {2000, 2100}));
    EXPECT_FALSE(model.isWaiting());
    EXPECT_EQ(model.cpu().text, u"72°C"_s);
    EXPECT_EQ(model.gpu().text, u"71°C"_s);
    ingest(sampleAt(2, 71.5, 71.4, {2000, 2200}));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(readings.size(), 1);
    ingest(sampleAt(4, 71.5, std::numeric_limits<double>::infinity()));
    ingest(sampleAt(6, 71.5, std::numeric_limits<double>::quiet_NaN()));
    ingest(sampleAt(7, 71.5, 0)); // no sensor
    EXPECT_EQ(model.gpu().text, u"--°C"_s);
    EXPECT_FALSE(model.gpu().isKnown);
    EXPECT_EQ(readings.size(), 2);

    model.setIsFollowing(false);
    ingest(sampleAt(8, 40, 40, {2000}));
    state.helper->setState(HelperState::notInstalled);
    EXPECT_EQ(model.cpu().text, u"72°C"_s);
    EXPECT_TRUE(model.isHelperInstalled());
    model.setIsFollowing(true);
    EXPECT_EQ(model.cpu().text, u"40°C"_s);
    EXPECT_FALSE(model.isHelperInstalled());
    state.setPhase(HelperControlPhase::failed);
    EXPECT_TRUE(model.isControlUnavailable());
}

TEST_F(MenuBarModelTest, OffersAutomaticAndEveryPresetInTheStoresOrder) {
    const auto mine = state.presets().addPreset(u"Mine"_s);
    state.presets().moveSlot(PresetSlot::preset(mine->id), PresetSlot::automatic());
    QStringList shown;
    for (const Choice& preset : model.presets()->rows())
        shown.append(preset.title);
    EXPECT_EQ(shown, (QStringList{u"Automatic"_s, u"Cool"_s, u"Full Speed"_s, u"Mine"_s}));
    EXPECT_EQ(model.activePresetIndex(), 0);

    model.activate(model.presets()->rows().back().identifier);
    EXPECT_EQ(state.presets().activePresetID(), mine->id);
    EXPECT_EQ(model.activePresetIndex(), 3);
    state.presets().setActivePresetID(QUuid::createUuid());
    EXPECT_EQ(model.activePresetIndex(), -1);
}

TEST_F(MenuBarModelTest, BoostsInStepsAndStandsStillUnderTheHand) {
    const std::pair<double, double> rows[] = {{37, 35}, {38, 40}, {-4, 0}, {104, 100}, {2.5, 5}};
    for (const auto& [dragged, snapped] : rows) {
        model.setBoost(dragged);
        EXPECT_EQ(state.engine().quickBoostPercent(), snapped) << dragged;
    }
    state.engine().setQuickBoostPercent(62.7);
    EXPECT_EQ(model.boostText(), u"62%"_s);

    model.setIsBoostDragged(true);
    model.setBoost(20);
    state.engine().setQuickBoostPercent(50);
    EXPECT_EQ(model.boostPercent(), 20);
    state.setPhase(HelperControlPhase::unlocking);
    EXPECT_FALSE(model.isTakingControl()) << "not under the hand";
    model.setIsBoostDragged(false);
    EXPECT_EQ(model.boostPercent(), 50);
    EXPECT_FALSE(model.isTakingControl()) << "the next key may follow";
    EXPECT_TRUE(QTest::qWaitFor([this] { return model.isTakingControl(); }));
    EXPECT_TRUE(model.isBoosting());
    state.engine().setQuickBoostPercent(0);
    EXPECT_FALSE(model.isBoosting());
}

} // namespace
} // namespace kestrowind
