#include "Core/LocalizedText.h"
#include "Core/OneLine.h"
#include "Core/PresetFile.h"
#include "Support/QtPrinters.h"
#include "UI/Presets/PresetsModel.h"
#include "UI/TestState.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(CardGridTest, HasAsManyColumnsAsFitAndSharesTheRest) {
    for (const auto& [width, grid] : {std::pair(438.0, CardGrid{2, 210}),
                                      {437.9, {1, 280}},
                                      {120, {1, 120}},
                                      {0, {1, 0}},
                                      {733, {3, 232}}})
        EXPECT_EQ(CardGrid::fitting(width), grid) << width;
}

TEST(OneLineTest, KeepsNamesOnALineAndInTheirPlace) {
    EXPECT_EQ(oneLine(u"a\u0007b\nc\r\nd\u2028\u2029e\tf 👩‍🍳 e\u0301\n"_s),
              u"ab c d e f 👩‍🍳 e\u0301 "_s);
    EXPECT_EQ(quotable(u"\u202eab\nc"_s), u"\u2068\u202eab c\u2069"_s);
}

class PresetsModelTest : public testing::Test {
protected:
    /// Answers the file dialog, and what is then said to be wrong.
    QString failureAfter(const QString& file) {
        FailureNotice& failure = *model.exchange()->failure();
        failure.dismiss();
        const bool worked = state.fileDialogs.answer(state.home.path(file));
        EXPECT_NE(worked, failure.isShown());
        return failure.isShown() ? failure.title() + u": "_s + failure.message() : QString();
    }

    TestState state;
    PresetsModel model{*state.appState, state.fileDialogs};
};

TEST_F(PresetsModelTest, ShowsTheSlotsInTheUsersOrder) {
    auto mine = state.presets().addPreset(u"Two\nlines"_s);
    mine->curves.clear();
    state.presets().update(*mine);
    state.presets().moveSlot(PresetSlot::preset(mine->id), PresetSlot::automatic());
    EXPECT_EQ(model.cards()->rows().front().name, u"Two lines"_s);
    EXPECT_EQ(model.cards()->rows().front().curve, ThumbnailCurve());
    EXPECT_EQ(model.activeRow(), 1);
    for (const auto& [row, places] : {std::pair(0, -1), {3, 1}, {-1, 1}, {7, -5}, {0, 4}})
        model.moveBy(row, places);
    EXPECT_EQ(model.activeRow(), 1) << "there is no such place";
    model.moveBy(1, 2);
    EXPECT_EQ(model.activeRow(), 3);
}

TEST_F(PresetsModelTest, AsksTheEngineToPushWhatIsActivated) {
    state.boost(0);
    QSignalSpy pushed(&state.engine(), &ControlEngine::requestedPercentsChanged);
    model.activate(PresetSlot::preset(FanPreset::fullSpeedID).id());
    EXPECT_TRUE(pushed.wait(2000));
}

TEST_F(PresetsModelTest, LeavesAloneWhatIsNoPresetOfTheUsers) {
    const auto before = state.presets().presets();
    for (const QString& fixed : {PresetSlot::preset(FanPreset::coolID).id(), u"automatic"_s,
                                 PresetSlot::preset(QUuid::createUuid()).id(), u"nonsense"_s}) {
        model.rename(fixed);
        model.requestDeletion(fixed);
        EXPECT_FALSE(model.isRenaming() || model.isDeleting());
        if (fixed == PresetSlot::preset(FanPreset::coolID).id())
            continue;
        model.duplicate(fixed);
        model.exchange()->exportPreset(fixed);
        EXPECT_EQ(state.fileDialogs.asked, FakeFileDialogs::Purpose::none);
        state.presets().setActivePresetID(FanPreset::coolID);
        if (fixed != u"automatic"_s)
            model.activate(fixed);
        EXPECT_EQ(model.activeRow(), 1);
    }
    model.confirmDeletion();
    EXPECT_EQ(state.presets().presets(), before);
}

TEST_F(PresetsModelTest, SaysWhyAFileIsNotTakenInOrNotWritten) {
    const QString file = u"taken \u202efrom here.json"_s;
    const QString title = u"“\u2068taken \u202efrom here.json\u2069” could not be imported: "_s;
    const QByteArray good = *PresetFile::encode(FanPreset::builtIns(2).front());
    const auto before = state.presets().presets();
    state.home.write(file, QByteArray(good).replace("80.0", "180.0"));
    model.exchange()->importPreset();
    EXPECT_EQ(failureAfter(file), title + localized("presets.import.pointOutOfRange"));
    EXPECT_EQ(state.presets().presets(), before);

    state.home.write(file, good);
    while (state.presets().canAddPreset()) {
        model.exchange()->importPreset();
        EXPECT_EQ(failureAfter(file), QString());
    }
    // The last place was taken while the dialog was open.
    const auto full = state.presets().presets();
    model.exchange()->importPreset();
    EXPECT_EQ(failureAfter(file), title + model.limitHelp());
    EXPECT_EQ(state.presets().presets(), full);

    model.exchange()->exportPreset(PresetSlot::preset(FanPreset::coolID).id());
    EXPECT_THAT(failureAfter(u"no such folder/cool.json"_s).toStdString(),
                testing::StartsWith("“\u2068cool.json\u2069” could not be written: "));
}

} // namespace
} // namespace kestrowind
