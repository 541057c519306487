#include "Support/QtPrinters.h"
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
    bool isAsked(FakeFileDialogs::Purpose purpose) {
        return QTest::qWaitFor([&] { return state.fileDialogs.asked == purpose; });
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

TEST_F(PresetsViewTest, AClickActivatesACardAndMakesAPreset) {
    view.click(u"Full Speed"_s);
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID);
    for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        view.click(u"Automatic"_s, other);
        EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID) << other;
    }
    view.click(u"Automatic"_s);
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);

    for (int i = 0; i < 2; ++i)
        state.presets().addPreset(u"Mine"_s);
    view.click(u"New Preset"_s);
    EXPECT_TRUE(model.isRenaming());
    view.press(Qt::Key_Escape);
    EXPECT_FALSE(model.isRenaming());
    ASSERT_TRUE(view.isGone(u"Cancel"_s));
    EXPECT_EQ(view.named(u"New Preset"_s)->property("isChosen"), false)
        << "the card now, not the button";
    view.click(u"No Room for More"_s);
    EXPECT_FALSE(model.isRenaming());
    EXPECT_EQ(state.presets().presets().size(), 5);
}

TEST_F(PresetsViewTest, TheKeyboardReachesEveryCardAndItsCommands) {
    state.presets().setActivePresetID(FanPreset::coolID);
    const auto mine = state.presets().addPreset(u"Mine"_s);
    view.press(Qt::Key_Tab);
    EXPECT_EQ(view.focused(), u"Cool"_s) << "the active one";
    view.press(Qt::Key_Right);
    EXPECT_EQ(view.focused(), u"Full Speed"_s);
    view.press(Qt::Key_Space);
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID);
    view.press(Qt::Key_Left);
    view.press(Qt::Key_Left);
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
    EXPECT_TRUE(QTest::qWaitFor([this] { return state.presets().presets().size() == 4; }));
}

TEST_F(PresetsViewTest, TheCardUnderTheKeyboardIsMarkedOnceAKeyIsUsed) {
    const auto isMarked = [&](const QString& card) {
        return view.named(card)->property("background").value<QQuickItem*>()->property("isFocused");
    };
    view.click(u"Automatic"_s);
    EXPECT_EQ(isMarked(u"Automatic"_s), false);
    view.press(Qt::Key_Right);
    EXPECT_EQ(isMarked(u"Cool"_s), true);
    view.click(u"Full Speed"_s);
    EXPECT_EQ(isMarked(u"Full Speed"_s), false);
}

TEST_F(PresetsViewTest, TheRenameDialogTakesTheKeyboardAndGivesItBack) {
    const auto mine = state.presets().addPreset(u"Mine"_s);
    view.press(Qt::Key_Tab);
    view.press(Qt::Key_Down);
    view.press(Qt::Key_F2);
    ASSERT_TRUE(model.isRenaming());
    EXPECT_EQ(view.focused(), u"Name"_s);
    type(u" Night "_s);
    EXPECT_EQ(model.renameDraftName(), u" Night "_s) << "the old name was selected";
    for (const QString& next : {u"Cancel"_s, u"Rename"_s, u"Name"_s}) {
        view.press(Qt::Key_Tab);
        EXPECT_EQ(view.focused(), next) << "nothing behind the dialog has the focus";
    }
    view.press(Qt::Key_Return);
    EXPECT_FALSE(model.isRenaming());
    EXPECT_EQ(state.presets().presets().last().name, u"Night"_s);
    ASSERT_TRUE(comesBackTo(u"Night"_s));

    view.press(Qt::Key_F2);
    type(u"x"_s);
    view.press(Qt::Key_Tab);
    view.press(Qt::Key_Return);
    EXPECT_FALSE(model.isRenaming());
    EXPECT_EQ(state.presets().presets().last().name, u"Night"_s) << "Return on Cancel cancels";
    ASSERT_TRUE(comesBackTo(u"Night"_s));
    view.press(Qt::Key_F2);
    type(u"y"_s);
    view.press(Qt::Key_Escape);
    EXPECT_EQ(state.presets().presets().last().name, u"Night"_s);
}

TEST_F(PresetsViewTest, DeletingAsksAndLeavesTheKeyboardAmongTheCards) {
    state.presets().addPreset(u"Mine"_s);
    view.press(Qt::Key_Tab);
    view.press(Qt::Key_Delete);
    EXPECT_FALSE(model.isDeleting()) << "automatic cannot be deleted";
    view.press(Qt::Key_Down);
    view.press(Qt::Key_Delete);
    ASSERT_TRUE(model.isDeleting());
    EXPECT_NE(view.awaited(model.deletionTitle()), nullptr);
    view.press(Qt::Key_Escape);
    EXPECT_FALSE(model.isDeleting());
    ASSERT_TRUE(comesBackTo(u"Mine"_s));
    view.press(Qt::Key_Backspace);
    ASSERT_TRUE(model.isDeleting());
    view.press(Qt::Key_Return);
    EXPECT_FALSE(model.isDeleting());
    ASSERT_TRUE(comesBackTo(u"Mine"_s));
    EXPECT_EQ(state.presets().presets().size(), 3) << "Return alone deletes nothing";
    view.press(Qt::Key_Delete);
    view.press(Qt::Key_Tab);
    EXPECT_EQ(view.focused(), u"Delete"_s);
    view.press(Qt::Key_Return);
    EXPECT_EQ(state.presets().presets().size(), 2);
    EXPECT_TRUE(comesBackTo(u"Full Speed"_s)) << view.focused().toStdString();
}

TEST_F(PresetsViewTest, TheContextMenuRenamesAndDeletes) {
    state.presets().addPreset(u"Mine"_s);
    view.click(u"Automatic"_s, Qt::RightButton);
    EXPECT_EQ(view.named(u"Duplicate"_s), nullptr);
    view.click(u"Mine"_s, Qt::RightButton);
    view.click(u"Full Speed"_s);
    EXPECT_TRUE(view.isGone(u"Rename…"_s));
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt) << "it only sent the menu away";
    view.click(u"Mine"_s, Qt::RightButton);
    view.click(u"Rename…"_s);
    EXPECT_TRUE(comesBackTo(u"Name"_s));
    view.press(Qt::Key_Escape);
    ASSERT_TRUE(view.isGone(u"Cancel"_s));
    view.click(u"Mine"_s, Qt::RightButton);
    view.click(u"Delete…"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return model.isDeleting(); }));
}

TEST_F(PresetsViewTest, MenusExportAndImportByPointerAndByKey) {
    view.click(u"Cool"_s, Qt::RightButton);
    view.click(u"Export…"_s);
    EXPECT_TRUE(isAsked(FakeFileDialogs::Purpose::save));
    state.fileDialogs.answer(state.home.path(u"cool.json"_s));

    ASSERT_TRUE(view.isGone(u"Export…"_s));
    view.click(u"New Preset"_s, Qt::RightButton);
    view.click(u"Import…"_s);
    EXPECT_TRUE(isAsked(FakeFileDialogs::Purpose::open));
    state.fileDialogs.answer(state.home.path(u"cool.json"_s));
    EXPECT_EQ(state.presets().presets().last().name, u"Cool Copy"_s);
    EXPECT_TRUE(comesBackTo(u"Cool Copy"_s));

    view.press(Qt::Key_Right);
    EXPECT_EQ(view.focused(), u"New Preset"_s);
    view.press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(view.awaited(u"Import…"_s), nullptr);
    view.press(Qt::Key_Down);
    view.press(Qt::Key_Return);
    EXPECT_TRUE(isAsked(FakeFileDialogs::Purpose::open));
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
    for (const QString& text : {QString(), u"hello"_s, QString(100'000, u'x')}) {
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
        auto preset = state.presets().addPreset(name);
        ASSERT_TRUE(preset);
        const QQuickItem* card = view.awaited(model.cards()->rows().last().name);
        ASSERT_NE(card, nullptr);
        EXPECT_EQ(card->width(), width);
        EXPECT_EQ(card->height(), 188);
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
