#include "Core/OneLine.h"
#include "Support/QtPrinters.h"
#include "UI/Presets/PresetsModel.h"
#include "UI/TestState.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

QString idOf(const QUuid& presetID) {
    return PresetSlot::preset(presetID).id();
}
const QString coolID = u"6E6C0001-0000-4000-8000-000000000001"_s;
const QString fullSpeedID = u"6E6C0002-0000-4000-8000-000000000002"_s;

TEST(CardGridTest, HasAsManyColumnsAsFitAndSharesTheRest) {
    struct Row {
        double width;
        CardGrid grid;
    };
    for (const auto& [width, grid] : {
             Row{438, {2, 210}},
             Row{437.9, {1, 280}},
             Row{120, {1, 120}},
             Row{0, {1, 0}},
             Row{732, {3, 232}},
             Row{894, {4, 210}},
             Row{893, {3, 280}},
         })
        EXPECT_EQ(CardGrid::fitting(width), grid) << width;
}

TEST(OneLineTest, KeepsNamesOnALineAndInTheirPlace) {
    struct Row {
        QString name, line;
    };
    for (const auto& [name, line] : {
             Row{u"Quiet"_s, u"Quiet"_s},
             Row{u"a\nb\r\nc\u2028\u2029d\te"_s, u"a b c d e"_s},
             Row{u"a\u0007b\u0000c"_s, u"abc"_s},
             Row{u"👩‍🍳 e\u0301"_s, u"👩‍🍳 e\u0301"_s},
             Row{u"\u05e9\u05dc\u05d5\u05dd\n"_s, u"\u05e9\u05dc\u05d5\u05dd "_s},
         })
        EXPECT_EQ(oneLine(name), line);
    EXPECT_EQ(quotable(u"\u202eabc"_s), u"\u2068\u202eabc\u2069"_s);
}

class PresetsModelTest : public testing::Test {
protected:
    QStringList names() {
        QStringList names;
        for (const PresetCard& card : model.cards()->rows())
            names.append(card.name);
        return names;
    }

    TestState state;
    PresetsModel model{*state.appState, state.fileDialogs};
};

TEST_F(PresetsModelTest, ShowsTheSlotsInTheUsersOrder) {
    EXPECT_THAT(names(), ElementsAre(u"Automatic"_s, u"Cool"_s, u"Full Speed"_s));
    EXPECT_EQ(model.activeRow(), 0);
    EXPECT_TRUE(model.cards()->rows()[0].isActive);
    EXPECT_FALSE(model.cards()->rows()[1].isEditable);

    auto mine = state.presets().addPreset(u"Two\nlines"_s);
    mine->curves.clear();
    state.presets().update(*mine);
    state.presets().moveSlot(PresetSlot::preset(mine->id), PresetSlot::automatic());
    EXPECT_THAT(names(), ElementsAre(u"Two lines"_s, u"Automatic"_s, u"Cool"_s, u"Full Speed"_s));
    EXPECT_TRUE(model.cards()->rows().front().isEditable);
    EXPECT_EQ(model.cards()->rows().front().curve, ThumbnailCurve());
    EXPECT_EQ(model.activeRow(), 1);
}

TEST(PresetCardsTest, BearASlotThatWasSavedTwice) {
    TestState state({u"-presetSlotOrder"_s, u"(automatic, automatic, nonsense, %1)"_s.arg(coolID)});
    PresetsModel model(*state.appState, state.fileDialogs);
    ASSERT_EQ(model.cards()->rowCount(), 4);
    EXPECT_TRUE(model.drop(u"automatic"_s, fullSpeedID));
    EXPECT_EQ(model.cards()->rowCount(), 4);
    EXPECT_EQ(model.cards()->rows()[1].name, u"Cool"_s);
}

TEST_F(PresetsModelTest, RefusesWhateverTextNamesNoSlot) {
    const QList<PresetSlot> order = state.presets().slotOrder();
    EXPECT_FALSE(model.drop(u"file:///etc/passwd"_s, coolID));
    EXPECT_FALSE(model.drop(coolID, u"nowhere"_s));
    EXPECT_TRUE(model.drop(coolID, coolID));
    EXPECT_TRUE(model.drop(idOf(QUuid::createUuid()), coolID)) << "a slot, but none of ours";
    EXPECT_EQ(state.presets().slotOrder(), order);
    EXPECT_TRUE(model.drop(coolID.toLower(), u"automatic"_s));
    EXPECT_NE(state.presets().slotOrder(), order);
}

TEST_F(PresetsModelTest, MovesByTheKeyboardWithinTheCards) {
    for (const auto& [row, places] : {std::pair(0, -1), {2, 1}, {-1, 1}, {7, -5}, {0, 3}})
        model.moveBy(row, places);
    EXPECT_THAT(names(), ElementsAre(u"Automatic"_s, u"Cool"_s, u"Full Speed"_s));
    model.moveBy(0, 2);
    EXPECT_THAT(names(), ElementsAre(u"Cool"_s, u"Full Speed"_s, u"Automatic"_s));
}

TEST_F(PresetsModelTest, ActivatesWhatThereIsAndAsksTheEngineToPush) {
    state.boost(0);
    QSignalSpy pushed(&state.engine(), &ControlEngine::requestedPercentsChanged);
    model.activate(fullSpeedID);
    EXPECT_EQ(model.activeRow(), 2);
    EXPECT_TRUE(pushed.wait(2000));
    model.activate(u"nonsense"_s);
    model.activate(idOf(QUuid::createUuid()));
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID);
}

TEST_F(PresetsModelTest, MakesPresetsUpToTheLimit) {
    QSignalSpy created(&model, &PresetsModel::cardCreated);
    model.createPreset();
    EXPECT_TRUE(model.isRenaming());
    EXPECT_EQ(model.renameDraftName(), u"New Preset"_s);
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);
    model.cancelRename();
    model.duplicate(coolID);
    EXPECT_FALSE(model.isRenaming());
    model.duplicate(u"automatic"_s);
    EXPECT_TRUE(model.canAddPreset());
    EXPECT_EQ(model.limitHelp(), QString());
    QSignalSpy limited(&model, &PresetsModel::canAddPresetChanged);
    model.duplicate(fullSpeedID);
    EXPECT_FALSE(model.canAddPreset());
    EXPECT_EQ(limited.size(), 1);
    EXPECT_THAT(model.limitHelp().toStdString(), testing::HasSubstr("3"));
    model.createPreset();
    model.duplicate(coolID);
    EXPECT_FALSE(model.isRenaming());
    EXPECT_EQ(created.size(), 3);
    EXPECT_EQ(created.last().front().toInt(), 5);
    EXPECT_EQ(names().last(), u"Full Speed Copy"_s);
}

TEST_F(PresetsModelTest, TakesTheTrimmedDraftAsTheName) {
    auto mine = *state.presets().addPreset(u"Mine"_s);
    const auto name = [&] { return state.presets().presets().last().name; };
    for (const auto& [draft, expected] : {
             std::pair(u"  \n Night \u2028"_s, u"Night"_s),
             std::pair(u" \t\n\u2029 "_s, u"Night"_s),
             std::pair(QString(), u"Night"_s),
             std::pair(QString(120, u'W'), QString(120, u'W')),
         }) {
        model.rename(idOf(mine.id));
        EXPECT_EQ(model.renameDraftName(), name());
        model.setRenameDraftName(draft);
        model.commitRename();
        EXPECT_FALSE(model.isRenaming());
        EXPECT_EQ(name(), expected);
    }
    model.rename(idOf(mine.id));
    mine.symbolName = u"bolt.fill"_s;
    state.presets().update(mine);
    model.setRenameDraftName(u"Yours"_s);
    model.commitRename();
    EXPECT_EQ(name(), u"Yours"_s);
    EXPECT_EQ(state.presets().presets().last().symbolName, u"bolt.fill"_s)
        << "what changed while the name was typed";
    for (const QString& fixed : {coolID, u"automatic"_s, u"nonsense"_s}) {
        model.rename(fixed);
        EXPECT_FALSE(model.isRenaming());
    }
}

TEST_F(PresetsModelTest, DeletesOnlyTheUsersOwnAndOnlyWhenConfirmed) {
    for (const QString& fixed : {coolID, u"automatic"_s, u"nonsense"_s}) {
        model.requestDeletion(fixed);
        EXPECT_FALSE(model.isDeleting());
    }
    const auto mine = state.presets().addPreset(u"A %1\nB"_s);
    state.presets().setActivePresetID(mine->id);
    model.requestDeletion(idOf(mine->id));
    EXPECT_EQ(model.deletionTitle(), u"Delete “\u2068A %1 B\u2069”?"_s);
    model.cancelDeletion();
    model.confirmDeletion();
    EXPECT_EQ(state.presets().presets().size(), 3);
    model.requestDeletion(idOf(mine->id));
    model.confirmDeletion();
    EXPECT_FALSE(model.isDeleting());
    EXPECT_EQ(state.presets().presets().size(), 2);
    EXPECT_EQ(model.activeRow(), 0);
}

} // namespace
} // namespace kestrowind
