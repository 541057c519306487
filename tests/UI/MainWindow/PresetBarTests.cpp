#include "Support/QtPrinters.h"
#include "UI/MainWindow/CaptionModel.h"
#include "UI/MainWindow/PresetPillsModel.h"
#include "UI/TestState.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using MessageTone::Tone;
using testing::ElementsAre;

QStringList titles(const auto* list) {
    QStringList titles;
    for (const auto& each : list->rows())
        titles.append(each.title);
    return titles;
}

TEST(PresetPillsTest, ShortensLongNamesByPerceivedCharacters) {
    for (const auto& [name, title] : {
             std::pair(u"Performance"_s, u"Performan…"_s),
             {u"Quiet mode"_s, u"Quiet mode"_s},
             {u"Cool and quiet"_s, u"Cool and…"_s},
             {u"  Night shift"_s, u"Night s…"_s},
             // Each cook is four code points but one character; each e with its accent two.
             {u"👩🏽‍🍳👩🏽‍🍳👩🏽‍🍳"_s,
              u"👩🏽‍🍳👩🏽‍🍳👩🏽‍🍳"_s},
             {u"e\u0301"_s.repeated(11), u"e\u0301"_s.repeated(9) + u'…'},
         })
        EXPECT_EQ(PresetPills::shortenedTitle(name), title);
}

TEST(PresetPillsTest, TakesTheLongestRowThatFits) {
    const QList<double> ten(10, 100.0);
    const QList<double> five(5, 100.0);
    struct Case {
        QList<double> widths;
        double available;
        PresetPills::Row row;
    };
    // The overflow menu is 38 wide, gaps are 10.
    for (const auto& [widths, available, row] : {
             Case{ten, 918, {8, 918}},
             Case{ten, 917.9, {6, 698}},
             Case{ten, 257, {1, 148}},
             Case{ten, 10, {1, 148}},
             Case{five, 540, {5, 540}},
             Case{five, 539, {4, 478}},
             Case{{}, 100, {0, 0}},
         })
        EXPECT_EQ(PresetPills::fittingRow(widths, available), row) << available;
}

TEST(PresetPillsModelTest, ShowsTheSlotsInOrderAndTheRestInTheMenu) {
    TestState state;
    PresetPillsModel model(*state.appState);
    EXPECT_EQ(model.shown()->count(), 0);

    model.setAvailableWidth(2000);
    auto mine = state.presets().addPreset(u"Mine"_s);
    mine->name = u"Performance"_s;
    state.presets().update(*mine);
    EXPECT_THAT(titles(model.shown()),
                ElementsAre(u"Automatic"_s, u"Cool"_s, u"Full Speed"_s, u"Performan…"_s));
    EXPECT_EQ(model.shown()->rows().last().fullName, u"Performance"_s);
    EXPECT_TRUE(model.shown()->rows().first().isActive);

    state.presets().setActivePresetID(mine->id);
    model.setAvailableWidth(model.rowWidth() - 1);
    EXPECT_THAT(titles(model.shown()), ElementsAre(u"Automatic"_s, u"Cool"_s));
    EXPECT_THAT(titles(model.overflow()), ElementsAre(u"Full Speed"_s, u"Performance"_s));
    EXPECT_TRUE(model.isActiveInOverflow());
    state.presets().moveSlot(PresetSlot::automatic(), PresetSlot::preset(FanPreset::coolID));
    EXPECT_THAT(titles(model.shown()), ElementsAre(u"Cool"_s, u"Automatic"_s));
    model.activate(model.overflow()->rows().first().identifier);
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID);
    model.activate(u"automatic"_s);
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);
    EXPECT_FALSE(model.isActiveInOverflow());
}

TEST(PresetPillsModelTest, SwitchesOnlyWhileTheHelperCan) {
    TestState state;
    PresetPillsModel model(*state.appState);
    model.setAvailableWidth(2000);
    QSignalSpy changed(&model, &PresetPillsModel::hindranceChanged);
    state.setPhase(HelperControlPhase::unlocking);
    EXPECT_FALSE(model.isSwitchable());
    model.activate(model.shown()->rows()[1].slotID());
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);
    state.setPhase(HelperControlPhase::failed);
    EXPECT_TRUE(model.isSwitchable());
    state.helper->setState(HelperState::notInstalled);
    EXPECT_FALSE(model.isSwitchable());
    EXPECT_EQ(changed.size(), 3);
}

TEST(CaptionModelTest, SaysTheStatusElseWhatThePresetDoes) {
    TestState state;
    CaptionModel model(*state.appState);
    QSignalSpy changed(&model, &CaptionModel::lineChanged);
    EXPECT_EQ(model.line(), (CaptionModel::Line{.text = u"The Mac controls its fans itself"_s}));
    state.presets().setActivePresetID(FanPreset::coolID);
    EXPECT_EQ(model.text(), u"Spins up early to keep the Mac cool"_s);
    state.setPhase(HelperControlPhase::unlocking);
    EXPECT_EQ(model.line(), (CaptionModel::Line{u"Taking control of the fans…"_s, u"hourglass"_s,
                                                Tone::Accent, true}));
    state.presets().setActivePresetID(std::nullopt);
    EXPECT_EQ(changed.size(), 2) << "the status hides the preset's caption";
    state.setPhase(HelperControlPhase::controlling);
    state.boost(60);
    EXPECT_EQ(model.text(), u"Boosting"_s);
    state.helper->setState(HelperState::notInstalled);
    EXPECT_EQ(model.text(), u"The helper is not installed"_s);
}

} // namespace
} // namespace kestrowind
