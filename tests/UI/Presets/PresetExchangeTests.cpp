#include "Core/LocalizedText.h"
#include "Core/PresetFile.h"
#include "Support/QtPrinters.h"
#include "UI/Presets/PresetsModel.h"
#include "UI/TestState.h"

#include <QFile>
#include <QSignalSpy>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using Purpose = FakeFileDialogs::Purpose;

class PresetExchangeTest : public testing::Test {
protected:
    QString file(const QByteArray& content) {
        QFile file(state.home.path(u"taken \u202efrom here.json"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    /// Answers the dialog, and what the failure then says; nothing when there is none.
    QString failureAfter(const QString& path) {
        exchange.failure()->dismiss();
        const bool worked = state.fileDialogs.answer(path);
        EXPECT_NE(worked, exchange.failure()->isShown());
        return exchange.failure()->isShown() ? exchange.failure()->message() : QString();
    }

    TestState state;
    PresetsModel model{*state.appState, state.fileDialogs};
    PresetExchange& exchange = *model.exchange();
};

TEST_F(PresetExchangeTest, APresetComesBackFromItsFileAsAnotherOne) {
    auto mine = *state.presets().addPreset(u"Night / day"_s);
    mine.curves = {FanCurve({{40, 10}, {90, 85.5}})};
    exchange.exportPreset(PresetSlot::preset(mine.id).id());
    EXPECT_EQ(state.fileDialogs.asked, Purpose::save);
    EXPECT_EQ(state.fileDialogs.fileName, u"Night / day"_s);
    EXPECT_EQ(state.fileDialogs.kind.suffix, u"json"_s);
    // It is edited while the dialog is open: the file has what is true by then.
    state.presets().update(mine);
    const QString path = state.home.path(u"night.json"_s);
    EXPECT_EQ(failureAfter(path), QString());

    QSignalSpy created(&model, &PresetsModel::cardCreated);
    exchange.importPreset();
    EXPECT_EQ(state.fileDialogs.asked, Purpose::open);
    EXPECT_EQ(failureAfter(path), QString());
    ASSERT_EQ(state.presets().presets().size(), 4);
    const FanPreset imported = state.presets().presets().last();
    EXPECT_EQ(imported.name, u"Night / day Copy"_s);
    EXPECT_NE(imported.id, mine.id);
    EXPECT_EQ(imported.curves, mine.curves);
    EXPECT_EQ(created.front().front(), 4) << "the new card";
    EXPECT_EQ(state.presets().preset(mine.id), mine);
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);
}

TEST_F(PresetExchangeTest, WhatCannotBeTakenInChangesNothingAndSaysWhy) {
    const QByteArray good = *PresetFile::encode(FanPreset::builtIns(2).front());
    const auto before = state.presets().presets();
    for (const auto& [content, key] :
         {std::pair(QByteArray("no preset"), "presets.import.notAPreset"),
          std::pair(QByteArray(good).replace("80.0", "180.0"), "presets.import.pointOutOfRange")}) {
        exchange.importPreset();
        EXPECT_EQ(failureAfter(file(content)), localized(key));
        EXPECT_EQ(exchange.failure()->title(),
                  u"“\u2068taken \u202efrom here.json\u2069” could not be imported"_s);
        EXPECT_EQ(state.presets().presets(), before);
    }
    while (state.presets().canAddPreset()) {
        exchange.importPreset();
        EXPECT_EQ(failureAfter(file(good)), QString());
    }
    // The last place was taken while the dialog was open.
    const auto full = state.presets().presets();
    EXPECT_EQ(full.last().name, u"Cool Copy Copy Copy"_s);
    exchange.importPreset();
    EXPECT_EQ(failureAfter(file(good)),
              localized("presets.limitReachedHelp").arg(PresetStore::maximumUserPresets));
    EXPECT_EQ(state.presets().presets(), full);
}

TEST_F(PresetExchangeTest, ExportsWhatIsAPresetToWhereItCan) {
    for (const QString& nothing : {u"automatic"_s, u"nonsense"_s, QString()})
        exchange.exportPreset(nothing);
    EXPECT_EQ(state.fileDialogs.asked, Purpose::none);
    exchange.exportPreset(PresetSlot::preset(FanPreset::coolID).id());
    EXPECT_FALSE(failureAfter(state.home.path(u"no such folder/cool.json"_s)).isEmpty());
    EXPECT_EQ(exchange.failure()->title(), u"“\u2068cool.json\u2069” could not be written"_s);
}

} // namespace
} // namespace kestrowind
