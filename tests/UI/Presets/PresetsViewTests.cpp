#include "Support/QmlComplaints.h"
#include "Support/QtPrinters.h"
#include "UI/DesignSystem/SceneAppearance.h"
#include "UI/MainWindow/TestState.h"
#include "UI/Presets/CardDrag.h"
#include "UI/Presets/PresetsModel.h"

#include <QAccessible>
#include <QMimeData>
#include <QPixmap>
#include <QQmlEngine>
#include <QQuickView>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>
#include <gmock/gmock.h>

#include <utility>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_PresetsPlugin)

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class PresetsViewTest : public testing::Test {
protected:
    PresetsViewTest() {
        view.engine()->addImportPath(u"qrc:/qt/qml"_s);
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setInitialProperties({{u"model"_s, QVariant::fromValue(&model)}});
        view.setSource(QUrl(u"qrc:/qt/qml/Kestrowind/Presets/PresetsRootView.qml"_s));
        view.resize(820, 700);
        view.show();
        static_cast<void>(QTest::qWaitForWindowExposed(&view));
        view.requestActivate();
        static_cast<void>(QTest::qWaitForWindowActive(&view));
    }

    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&view, static_cast<Qt::Key>(key), modifiers);
    }
    void type(const QString& text) {
        for (const QChar character : text)
            QTest::keyClick(&view, character.toLatin1());
    }

    /// The visible item of the scene that a person would call so.
    QQuickItem* named(const QString& name) const { return find(view.contentItem(), name); }
    /// The same, as soon as there is one: what scrolls makes its items with the next frame.
    QQuickItem* awaited(const QString& name) const {
        static_cast<void>(QTest::qWaitFor([&] { return named(name) != nullptr; }));
        return named(name);
    }
    /// Of the item that has the keyboard.
    QString focused() const {
        const QQuickItem* item = view.activeFocusItem();
        return item ? spokenName(*item) : QString();
    }
    static QPoint middle(const QQuickItem* item) {
        return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
    }
    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        const QQuickItem* item = awaited(name);
        ASSERT_NE(item, nullptr) << name.toStdString();
        // Where it stays, not where it passes by.
        QPoint before;
        ASSERT_TRUE(QTest::qWaitFor([&] {
            static_cast<void>(view.grabWindow()); // a frame
            const QPoint last = std::exchange(before, middle(item));
            return before == last && item->opacity() >= 1;
        }));
        QTest::mouseClick(&view, button, {}, middle(item));
    }
    QStringList order() const {
        QStringList names;
        for (const PresetCard& card : model_().cards())
            names.append(card.name);
        return names;
    }

    /// What a drag does that enters with a text, moves to a card, and is let go there.
    bool dropOn(const QString& card, const QString& text) {
        QMimeData payload;
        payload.setText(text);
        const QPoint position = middle(named(card));
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
    QQuickView view;

private:
    const PresetCards& model_() const { return *const_cast<PresetsModel&>(model).cards(); }
    static QString spokenName(const QQuickItem& item) {
        QAccessibleInterface* spoken =
            QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(&item));
        return spoken ? spoken->text(QAccessible::Name) : QString();
    }
    static QQuickItem* find(QQuickItem* below, const QString& name) {
        for (QQuickItem* child : below->childItems()) {
            if (!child->isVisible())
                continue;
            if (spokenName(*child) == name && child->width() > 0)
                return child;
            if (QQuickItem* found = find(child, name))
                return found;
        }
        return nullptr;
    }

    QmlComplaints m_complaints;
};

TEST_F(PresetsViewTest, AClickActivatesACardAndMakesAPreset) {
    click(u"Full Speed"_s);
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID);
    click(u"Automatic"_s);
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);

    for (int i = 0; i < 2; ++i)
        state.presets().addPreset(u"Mine"_s);
    click(u"New Preset"_s);
    EXPECT_TRUE(model.isRenaming());
    press(Qt::Key_Escape);
    EXPECT_FALSE(model.isRenaming());
    ASSERT_TRUE(QTest::qWaitFor([this] { return named(u"Cancel"_s) == nullptr; }));
    EXPECT_EQ(named(u"New Preset"_s)->property("isActive"), false)
        << "the card now, not the button";
    click(u"No Room for More"_s);
    EXPECT_FALSE(model.isRenaming());
    EXPECT_EQ(state.presets().presets().size(), 5);
}

TEST_F(PresetsViewTest, TheKeyboardReachesEveryCardAndItsCommands) {
    state.presets().setActivePresetID(FanPreset::coolID);
    const auto mine = state.presets().addPreset(u"Mine"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"Cool"_s) << "the active one";
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), u"Full Speed"_s);
    press(Qt::Key_Space);
    EXPECT_EQ(state.presets().activePresetID(), FanPreset::fullSpeedID);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Return);
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), u"Mine"_s) << "three columns";
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), u"New Preset"_s);
    press(Qt::Key_Left);

    press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_THAT(order(), ElementsAre(u"Mine"_s, u"Automatic"_s, u"Cool"_s, u"Full Speed"_s));
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_THAT(order(), ElementsAre(u"Automatic"_s, u"Mine"_s, u"Cool"_s, u"Full Speed"_s));
    EXPECT_EQ(focused(), u"Mine"_s) << "the focus goes along";

    press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(awaited(u"Delete…"_s), nullptr);
    press(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([this] { return named(u"Delete…"_s) == nullptr; }));
    press(Qt::Key_Right);
    press(Qt::Key_Menu);
    EXPECT_NE(awaited(u"Duplicate"_s), nullptr);
    EXPECT_EQ(named(u"Delete…"_s), nullptr) << "Cool is built in";
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return state.presets().presets().size() == 4; }));
}

TEST_F(PresetsViewTest, TheRenameDialogTakesTheKeyboardAndGivesItBack) {
    const auto mine = state.presets().addPreset(u"Mine"_s);
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    press(Qt::Key_F2);
    ASSERT_TRUE(model.isRenaming());
    EXPECT_EQ(focused(), u"Name"_s);
    type(u" Night "_s);
    EXPECT_EQ(model.renameDraftName(), u" Night "_s) << "the old name was selected";
    for (const QString& next : {u"Cancel"_s, u"Rename"_s, u"Name"_s}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(focused(), next) << "nothing behind the dialog has the focus";
    }
    press(Qt::Key_Return);
    EXPECT_FALSE(model.isRenaming());
    EXPECT_EQ(state.presets().presets().last().name, u"Night"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return focused() == u"Night"_s; }));

    press(Qt::Key_F2);
    type(u"x"_s);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_FALSE(model.isRenaming());
    EXPECT_EQ(state.presets().presets().last().name, u"Night"_s) << "Return on Cancel cancels";
    ASSERT_TRUE(QTest::qWaitFor([this] { return focused() == u"Night"_s; }));
    press(Qt::Key_F2);
    type(u"y"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(state.presets().presets().last().name, u"Night"_s);
}

TEST_F(PresetsViewTest, DeletingAsksAndLeavesTheKeyboardAmongTheCards) {
    state.presets().addPreset(u"Mine"_s);
    press(Qt::Key_Tab);
    press(Qt::Key_Delete);
    EXPECT_FALSE(model.isDeleting()) << "automatic cannot be deleted";
    press(Qt::Key_Down);
    press(Qt::Key_Delete);
    ASSERT_TRUE(model.isDeleting());
    EXPECT_NE(awaited(model.deletionTitle()), nullptr);
    press(Qt::Key_Escape);
    EXPECT_FALSE(model.isDeleting());
    ASSERT_TRUE(QTest::qWaitFor([this] { return focused() == u"Mine"_s; }));
    press(Qt::Key_Backspace);
    ASSERT_TRUE(model.isDeleting());
    press(Qt::Key_Return);
    EXPECT_EQ(state.presets().presets().size(), 2);
    EXPECT_TRUE(QTest::qWaitFor([this] { return focused() == u"Full Speed"_s; }))
        << focused().toStdString();
}

TEST_F(PresetsViewTest, TheContextMenuRenamesAndDeletes) {
    state.presets().addPreset(u"Mine"_s);
    click(u"Automatic"_s, Qt::RightButton);
    EXPECT_EQ(named(u"Duplicate"_s), nullptr);
    click(u"Mine"_s, Qt::RightButton);
    ASSERT_NE(awaited(u"Rename…"_s), nullptr);
    click(u"Rename…"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return model.isRenaming(); }));
    EXPECT_EQ(focused(), u"Name"_s);
    press(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([this] { return named(u"Cancel"_s) == nullptr; }));
    click(u"Mine"_s, Qt::RightButton);
    click(u"Delete…"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return model.isDeleting(); }));
}

TEST_F(PresetsViewTest, MenusExportAndImportByPointerAndByKey) {
    click(u"Cool"_s, Qt::RightButton);
    click(u"Export…"_s);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return state.fileDialogs.asked == FakeFileDialogs::Purpose::save; }));
    state.fileDialogs.answer(state.home.path(u"cool.json"_s));

    click(u"New Preset"_s, Qt::RightButton);
    click(u"Import…"_s);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return state.fileDialogs.asked == FakeFileDialogs::Purpose::open; }));
    state.fileDialogs.answer(state.home.path(u"cool.json"_s));
    EXPECT_EQ(state.presets().presets().last().name, u"Cool Copy"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return focused() == u"Cool Copy"_s; }));

    press(Qt::Key_Right);
    EXPECT_EQ(focused(), u"New Preset"_s);
    press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(awaited(u"Import…"_s), nullptr);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return state.fileDialogs.asked == FakeFileDialogs::Purpose::open; }));
    state.fileDialogs.answer(state.home.path(u"missing.json"_s));
    EXPECT_NE(awaited(u"“\u2068missing.json\u2069” could not be imported"_s), nullptr);
    EXPECT_NE(awaited(model.exchange()->failure()->message()), nullptr);
    EXPECT_EQ(focused(), u"OK"_s);
    press(Qt::Key_Return);
    EXPECT_FALSE(model.exchange()->failure()->isShown());
    ASSERT_TRUE(QTest::qWaitFor([this] { return focused() == u"New Preset"_s; }));
}

TEST_F(PresetsViewTest, ADroppedTextMovesACardOrIsRefused) {
    EXPECT_TRUE(dropOn(u"Full Speed"_s, u"automatic"_s));
    EXPECT_THAT(order(), ElementsAre(u"Cool"_s, u"Full Speed"_s, u"Automatic"_s));
    for (const QString& text : {QString(), u"hello"_s, u"automatic\n"_s, QString(100'000, u'x')})
        EXPECT_FALSE(dropOn(u"Cool"_s, text));
    EXPECT_THAT(order(), ElementsAre(u"Cool"_s, u"Full Speed"_s, u"Automatic"_s));

    // A file is no text, and a drag that leaves marks nothing any more.
    QMimeData files;
    files.setData(u"application/octet-stream"_s, QByteArray(10, '\0'));
    QDragEnterEvent enter(middle(named(u"Cool"_s)), Qt::CopyAction, &files, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &enter);
    EXPECT_FALSE(enter.isAccepted());
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&view, &leave);
}

TEST_F(PresetsViewTest, ACardCarriesAPictureOfItself) {
    const QPixmap picture = CardDrag::picture(*named(u"Cool"_s));
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(245, 188));
    const QImage image = picture.toImage();
    EXPECT_NE(image.pixelColor(37, 37), image.pixelColor(120, 20)) << "the badge, and nothing";
}

TEST_F(PresetsViewTest, AwkwardNamesStayInsideTheirCards) {
    const double width = named(u"Cool"_s)->width();
    for (const QString& name :
         {QString(120, u'W'),
          u"\u0645\u0631\u0648\u062d\u0629 \u05e9\u05e7\u05d8\n\n\u2028"_s.repeated(9),
          u"👩🏽‍🍳 Z\u0351\u036b\u0343\u036a\u0302\u036b\u033d\u034f"_s.repeated(12)}) {
        auto preset = state.presets().addPreset(name);
        ASSERT_TRUE(preset);
        const QQuickItem* card = awaited(model.cards()->cards().last().name);
        ASSERT_NE(card, nullptr);
        EXPECT_EQ(card->width(), width);
        EXPECT_EQ(card->height(), 188);
        model.requestDeletion(PresetSlot::preset(preset->id).id());
        const QQuickItem* title = awaited(model.deletionTitle());
        ASSERT_NE(title, nullptr);
        EXPECT_LE(title->width(), 336);
        EXPECT_LT(title->height(), 120);
        model.confirmDeletion();
        ASSERT_TRUE(QTest::qWaitFor([this] { return named(u"Cancel"_s) == nullptr; }));
    }
}

} // namespace
} // namespace kestrowind
