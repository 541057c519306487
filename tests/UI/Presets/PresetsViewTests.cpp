#include "Support/QtPrinters.h"
#include "UI/BothSchemes.h"
#include "UI/Presets/CardDrag.h"
#include "UI/Presets/PresetsModel.h"
#include "UI/RoomView.h"
#include "UI/TestState.h"

#include <QMimeData>
#include <QPixmap>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class PresetsViewTest : public testing::Test {
protected:
    PresetsViewTest() { view.showActive(); }

    void type(const QString& text) {
        for (const QChar character : text)
            QTest::keyClick(&view, character.toLatin1());
    }
    /// The keyboard comes back once a dialog has gone.
    bool comesBackTo(const QString& name) {
        return QTest::qWaitFor([&] { return view.focused() == name; });
    }
    /// In a card's menu; the command runs when the menu is gone.
    void choose(const QString& command, const QString& card) {
        view.click(card, Qt::RightButton);
        view.click(command);
        EXPECT_TRUE(view.isGone(command));
    }
    QStringList order() {
        QStringList names;
        for (const PresetCard& card : model.cards()->rows())
            names.append(card.name);
        return names;
    }

    /// What a drag does that enters, moves to a card, and is let go there.
    bool dropOn(const QString& card, const QMimeData& payload) {
        const QPoint position = RoomView::middle(*view.named(card));
        QDragEnterEvent enter(position, Qt::MoveAction, &payload, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&view, &enter);
        QDragMoveEvent move(position, Qt::MoveAction, &payload, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&view, &move);
        QDropEvent drop(position, Qt::MoveAction, &payload, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&view, &drop);
        return drop.isAccepted();
    }

    TestState state;
    PresetsModel model{*state.appState, state.fileDialogs};
    RoomView view{u"Presets/PresetsRootView.qml"_s, model, {820, 700}};
};

TEST_F(PresetsViewTest, CardsShowTheirCurvesAndWhichIsActive) {
    state.presets().setActivePresetID(FanPreset::coolID);
    RoomView another(u"Presets/PresetsRootView.qml"_s, model, {680, 480});
    another.showActive();
    EXPECT_TRUE(looksLike(u"Presets/cards"_s, inBothSchemes(another, *another.engine())));
}

TEST_F(PresetsViewTest, AClickActivatesACardAndMakesAPreset) {
    view.click(u"Full Speed"_s);
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID);
    for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        view.click(u"Automatic"_s, other);
        EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID) << other;
    }
    EXPECT_EQ(view.named(u"Duplicate"_s), nullptr) << "it has no menu";
    view.click(u"Automatic"_s);
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);

    for (int i = 0; i < 2; ++i)
        state.presets().addPreset(u"Mine"_s);
    view.click(u"New Preset"_s);
    EXPECT_EQ(model.renameDraftName(), u"New Preset"_s);
    view.press(Qt::Key_Escape);
    EXPECT_FALSE(model.isRenaming());
    ASSERT_TRUE(view.isGone(u"Cancel"_s));
    EXPECT_TRUE(comesBackTo(u"New Preset"_s));
    EXPECT_EQ(view.named(u"New Preset"_s)->property("isChosen"), false)
        << "the card now, not the button";
    EXPECT_THAT(RoomView::description(*view.named(u"No Room for More"_s)).toStdString(),
                testing::HasSubstr("3"));
    view.click(u"No Room for More"_s);
    EXPECT_FALSE(model.isRenaming());
}

TEST_F(PresetsViewTest, TheKeyboardReachesEveryCardAndItsCommands) {
    const auto isMarked = [&](const QString& card) {
        return view.named(card)->property("background").value<QQuickItem*>()->property("isFocused");
    };
    state.presets().setActivePresetID(FanPreset::coolID);
    state.presets().addPreset(u"Mine"_s);
    view.press(Qt::Key_Tab);
    EXPECT_EQ(view.focused(), u"Cool"_s) << "the active one";
    view.press(Qt::Key_Right);
    EXPECT_EQ(view.focused(), u"Full Speed"_s);
    view.press(Qt::Key_Space);
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID);
    view.click(u"Cool"_s);
    EXPECT_EQ(isMarked(u"Cool"_s), false) << "the pointer is in use";
    view.press(Qt::Key_Left);
    EXPECT_EQ(isMarked(u"Automatic"_s), true);
    view.press(Qt::Key_Delete);
    EXPECT_FALSE(model.isDeleting()) << "automatic cannot be deleted";
    view.press(Qt::Key_Return);
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);
    view.press(Qt::Key_Down);
    EXPECT_EQ(view.focused(), u"Mine"_s) << "three columns";
    view.press(Qt::Key_Right);
    EXPECT_EQ(view.focused(), u"New Preset"_s);
    view.press(Qt::Key_Left);

    view.press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_THAT(order(), ElementsAre(u"Mine"_s, u"Automatic"_s, u"Cool"_s, u"Full Speed"_s));
    view.press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_THAT(order(), ElementsAre(u"Automatic"_s, u"Mine"_s, u"Cool"_s, u"Full Speed"_s));
    EXPECT_EQ(view.focused(), u"Mine"_s) << "the focus goes along";

    view.press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(view.awaited(u"Delete…"_s), nullptr);
    view.press(Qt::Key_Escape);
    ASSERT_TRUE(view.isGone(u"Delete…"_s));
    view.press(Qt::Key_Right);
    view.press(Qt::Key_Menu);
    EXPECT_NE(view.awaited(u"Duplicate"_s), nullptr);
    EXPECT_EQ(view.named(u"Delete…"_s), nullptr) << "Cool is built in";
    view.press(Qt::Key_Down);
    view.press(Qt::Key_Return);
    EXPECT_TRUE(comesBackTo(u"Cool Copy"_s));
    EXPECT_FALSE(model.isRenaming());
}

TEST_F(PresetsViewTest, TheRenameDialogTakesTheKeyboardAndGivesItBack) {
    auto mine = *state.presets().addPreset(u"Mine"_s);
    view.press(Qt::Key_Tab);
    view.press(Qt::Key_Down);
    choose(u"Rename…"_s, u"Mine"_s);
    EXPECT_TRUE(comesBackTo(u"Name"_s));
    EXPECT_EQ(model.renameDraftName(), u"Mine"_s);
    type(u" Night "_s);
    EXPECT_EQ(model.renameDraftName(), u" Night "_s) << "the old name was selected";
    for (const QString& next : {u"Cancel"_s, u"Rename"_s, u"Name"_s}) {
        view.press(Qt::Key_Tab);
        EXPECT_EQ(view.focused(), next) << "nothing behind the dialog has the focus";
    }
    mine.symbolName = u"bolt.fill"_s;
    state.presets().update(mine);
    view.press(Qt::Key_Return);
    EXPECT_FALSE(model.isRenaming());
    EXPECT_EQ(order().last(), u"Night"_s);
    EXPECT_EQ(model.cards()->rows().last().symbolName, u"bolt.fill"_s)
        << "what changed while the name was typed";
    // No name is no change, and Return on Cancel cancels.
    for (const auto& [text, next, leave] : {std::tuple(u"x"_s, Qt::Key_Tab, Qt::Key_Return),
                                            {u"x"_s, Qt::Key_Shift, Qt::Key_Escape},
                                            {u" "_s, Qt::Key_Shift, Qt::Key_Return}}) {
        ASSERT_TRUE(comesBackTo(u"Night"_s));
        view.press(Qt::Key_F2);
        type(text);
        view.press(next);
        view.press(leave);
        EXPECT_FALSE(model.isRenaming());
        EXPECT_EQ(order().last(), u"Night"_s);
    }
}

TEST_F(PresetsViewTest, DeletingAsksAndLeavesTheKeyboardAmongTheCards) {
    state.presets().addPreset(u"A %1\nB"_s);
    view.press(Qt::Key_Tab);
    view.press(Qt::Key_Down);
    choose(u"Delete…"_s, u"A %1 B"_s);
    ASSERT_NE(view.awaited(u"Delete “\u2068A %1 B\u2069”?"_s), nullptr);
    for (const Qt::Key no : {Qt::Key_Escape, Qt::Key_Return}) {
        ASSERT_TRUE(model.isDeleting());
        view.press(no);
        EXPECT_FALSE(model.isDeleting());
        ASSERT_TRUE(comesBackTo(u"A %1 B"_s));
        EXPECT_EQ(order().size(), 4) << "Return alone deletes nothing";
        view.press(no == Qt::Key_Escape ? Qt::Key_Backspace : Qt::Key_Delete);
    }
    view.press(Qt::Key_Tab);
    EXPECT_EQ(view.focused(), u"Delete"_s);
    view.press(Qt::Key_Return);
    EXPECT_THAT(order(), ElementsAre(u"Automatic"_s, u"Cool"_s, u"Full Speed"_s));
    EXPECT_FALSE(model.isDeleting());
    EXPECT_TRUE(comesBackTo(u"Full Speed"_s)) << view.focused().toStdString();
}

TEST_F(PresetsViewTest, APresetComesBackFromItsFileAsAnotherOne) {
    auto mine = *state.presets().addPreset(u"Night / day"_s);
    view.click(mine.name, Qt::RightButton);
    view.click(u"Full Speed"_s);
    EXPECT_TRUE(view.isGone(u"Rename…"_s));
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt) << "it only sent the menu away";
    choose(u"Export…"_s, mine.name);
    EXPECT_EQ(state.fileDialogs.asked, FakeFileDialogs::Purpose::save);
    EXPECT_EQ(state.fileDialogs.fileName, mine.name);
    EXPECT_EQ(state.fileDialogs.kind.suffix, u"json"_s);
    // It is edited while the dialog is open: the file has what is true by then.
    mine.curves = {FanCurve({{40, 10}, {90, 85.5}})};
    state.presets().update(mine);
    EXPECT_TRUE(state.fileDialogs.answer(state.home.path(u"night.json"_s)));

    choose(u"Import…"_s, u"New Preset"_s);
    EXPECT_EQ(state.fileDialogs.asked, FakeFileDialogs::Purpose::open);
    EXPECT_TRUE(state.fileDialogs.answer(state.home.path(u"night.json"_s)));
    EXPECT_EQ(state.presets().presets().last().curves, mine.curves);
    EXPECT_TRUE(comesBackTo(u"Night / day Copy"_s));

    view.press(Qt::Key_Right);
    EXPECT_EQ(view.focused(), u"New Preset"_s);
    view.press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(view.awaited(u"Import…"_s), nullptr);
    view.press(Qt::Key_Down);
    view.press(Qt::Key_Return);
    EXPECT_TRUE(view.isGone(u"Import…"_s));
    state.fileDialogs.answer(state.home.path(u"missing.json"_s));
    EXPECT_NE(view.awaited(u"“\u2068missing.json\u2069” could not be imported"_s), nullptr);
    EXPECT_NE(view.awaited(model.exchange()->failure()->message()), nullptr);
    EXPECT_EQ(view.focused(), u"OK"_s);
    view.press(Qt::Key_Return);
    EXPECT_FALSE(model.exchange()->failure()->isShown());
    ASSERT_TRUE(comesBackTo(u"New Preset"_s));
}

TEST_F(PresetsViewTest, ADroppedTextMovesACardAndNothingElseDoes) {
    QMimeData payload;
    payload.setText(u"automatic"_s);
    EXPECT_TRUE(dropOn(u"Full Speed"_s, payload));
    EXPECT_THAT(order(), ElementsAre(u"Cool"_s, u"Full Speed"_s, u"Automatic"_s));
    for (const QString& text : {QString(), QString(100'000, u'x')}) {
        payload.setText(text);
        EXPECT_FALSE(dropOn(u"Cool"_s, payload));
    }
    QMimeData file;
    file.setData(u"application/octet-stream"_s, QByteArray(10, '\0'));
    EXPECT_FALSE(dropOn(u"Cool"_s, file));
    EXPECT_THAT(order(), ElementsAre(u"Cool"_s, u"Full Speed"_s, u"Automatic"_s));
}

TEST_F(PresetsViewTest, ACardCarriesAPictureOfItself) {
    const QPixmap picture = CardDrag::picture(*view.named(u"Cool"_s), 16);
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(245, 188));
    const QImage image = picture.toImage();
    EXPECT_NE(image.pixelColor(37, 37), image.pixelColor(120, 20)) << "the badge, and nothing";
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << "round corners";
}

TEST_F(PresetsViewTest, AwkwardNamesStayInsideTheirCards) {
    const double width = view.named(u"Cool"_s)->width();
    for (const QString& name :
         {QString(120, u'W'),
          u"\u0645\u0631\u0648\u062d\u0629 \u05e9\u05e7\u05d8\n\n\u2028"_s.repeated(9),
          u"👩🏽‍🍳 Z\u0351\u036b\u0343\u036a\u0302\u036b\u033d\u034f"_s.repeated(12)}) {
        const auto preset = state.presets().addPreset(name);
        const QQuickItem* card = view.awaited(order().last());
        ASSERT_NE(card, nullptr);
        EXPECT_EQ(card->size(), QSizeF(width, 188));
        model.requestDeletion(PresetSlot::preset(preset->id).id());
        const QQuickItem* title = view.awaited(model.deletionTitle());
        ASSERT_NE(title, nullptr);
        EXPECT_LE(title->width(), 336);
        EXPECT_LT(title->height(), 120);
        model.confirmDeletion();
        ASSERT_TRUE(view.isGone(u"Cancel"_s));
    }
}

} // namespace
} // namespace kestrowind
