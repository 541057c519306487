#include "Support/QmlComplaints.h"
#include "UI/Curves/CurveEditHistory.h"
#include "UI/Curves/CurvesModel.h"
#include "UI/MainWindow/TestState.h"

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickView>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <gmock/gmock.h>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_CurveEditorPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_CurvesPlugin)

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class CurvesView : public testing::Test {
protected:
    CurvesView() {
        view.engine()->addImportPath(u"qrc:/qt/qml"_s);
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setInitialProperties({{u"model"_s, QVariant::fromValue(&model)}});
        view.setSource(QUrl(u"qrc:/qt/qml/Kestrowind/Curves/CurvesRootView.qml"_s));
        view.resize(820, 600);
        view.show();
        view.requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    /// The visible item of a name that a screen reader says.
    QQuickItem* named(const QString& name, QQuickItem* below = nullptr) {
        for (QQuickItem* child : (below ? below : view.contentItem())->childItems()) {
            const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(child);
            if (child->isVisible() && spoken && spoken->text(QAccessible::Name) == name)
                return child;
            if (QQuickItem* item = named(name, child))
                return item;
        }
        return nullptr;
    }
    void click(const QString& name) {
        QQuickItem* item = named(name);
        ASSERT_NE(item, nullptr) << name.toStdString();
        const QPointF centre(item->width() / 2, item->height() / 2);
        QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier,
                          item->mapToScene(centre).toPoint());
    }

    TestState state;
    CurveEditHistory history;
    CurvesModel model{*state.appState, history};
    QQuickView view;

private:
    QmlComplaints m_complaints;
};

TEST_F(CurvesView, CustomizesEditsAndUndoesByPointerAndKeys) {
    const double withNote = view.rootObject()->implicitHeight();
    click(u"Customize"_s);
    EXPECT_EQ(model.presetName(), u"Cool Copy"_s);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return view.rootObject()->implicitHeight() < withNote; }, 3000));
    EXPECT_EQ(named(u"Customize"_s), nullptr);

    click(u"Point 3"_s);
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_EQ(model.chart()->curve().points()[2], (FanCurvePoint{55, 31}));
    QTest::keyClick(&view, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(model.chart()->curve().points()[2], (FanCurvePoint{55, 30}));
    QTest::keyClick(&view, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(model.chart()->curve().points()[2], (FanCurvePoint{55, 31}));
    click(u"Undo"_s);
    EXPECT_EQ(model.chart()->curve().points()[2], (FanCurvePoint{55, 30}));
}

TEST_F(CurvesView, PicksAndMakesPresetsInItsMenu) {
    click(u"Preset"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return named(u"Full Speed"_s); }, 3000));
    EXPECT_EQ(named(u"Your Presets"_s), nullptr) << "there are none";
    click(u"Full Speed"_s);
    EXPECT_EQ(model.presetName(), u"Full Speed"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !named(u"New Preset"_s); }, 3000));
    click(u"Preset"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return named(u"New Preset"_s); }, 3000));
    click(u"New Preset"_s);
    EXPECT_EQ(model.presetName(), u"New Preset"_s);
    EXPECT_TRUE(model.chart()->isEditable());
}

TEST_F(CurvesView, GivesAHighWindowToTheChart) {
    const double height = model.chart()->plot().height();
    const double natural = view.rootObject()->implicitHeight();
    EXPECT_GT(height, 250);
    view.resize(820, static_cast<int>(natural) + 150);
    EXPECT_TRUE(QTest::qWaitFor([&] { return model.chart()->plot().height() > height; }, 3000));
    EXPECT_EQ(view.rootObject()->implicitHeight(), natural);
}

} // namespace
} // namespace kestrowind
