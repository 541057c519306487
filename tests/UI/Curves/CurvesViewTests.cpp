#include "Support/QtPrinters.h"
#include "UI/Curves/CurveEditHistory.h"
#include "UI/Curves/CurvesModel.h"
#include "UI/RoomView.h"
#include "UI/TestState.h"

#include <gmock/gmock.h>

#include <utility>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class CurvesView : public testing::Test {
protected:
    CurvesView() { view.showActive(); }

    TestState state;
    CurveEditHistory history;
    CurvesModel model{*state.appState, history};
    RoomView view{u"Curves/CurvesRootView.qml"_s, model, {820, 600}};
};

TEST_F(CurvesView, CustomizesEditsAndUndoesByPointerAndKeys) {
    const QString howToEdit = qtTrId("curves.hint.howToEdit");
    EXPECT_EQ(view.named(howToEdit), nullptr) << "it cannot be edited";
    const auto place = [&] {
        static_cast<void>(view.grabWindow());
        return view.named(u"Fan curve"_s)
            ->mapRectToScene(view.named(u"Fan curve"_s)->boundingRect());
    };
    const QRectF before = place();
    view.click(u"Customize"_s);
    EXPECT_EQ(model.presetName(), u"Cool Copy"_s);
    EXPECT_EQ(place(), before) << "the chart stays where it is";
    EXPECT_EQ(view.named(u"Customize"_s), nullptr);
    EXPECT_NE(view.named(howToEdit), nullptr);

    const auto third = [&] { return model.chart()->curve().points()[2]; };
    view.click(u"Point 3"_s);
    view.press(Qt::Key_Up);
    EXPECT_EQ(third(), (FanCurvePoint{55, 31}));
    view.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(third(), (FanCurvePoint{55, 30}));
    for (const auto& [key, modifiers] : {std::pair(Qt::Key_Y, Qt::KeyboardModifiers()),
                                         std::pair(Qt::Key_Z, Qt::KeyboardModifiers(Qt::SHIFT))}) {
        view.press(key, modifiers | Qt::ControlModifier);
        EXPECT_EQ(third(), (FanCurvePoint{55, 31}));
        view.press(Qt::Key_Z, Qt::ControlModifier);
    }
    view.click(u"Redo"_s);
    EXPECT_EQ(third(), (FanCurvePoint{55, 31}));
    view.click(u"Undo"_s);
    EXPECT_EQ(third(), (FanCurvePoint{55, 30}));
}

TEST_F(CurvesView, PicksAndMakesPresetsInItsMenu) {
    view.click(u"Preset"_s);
    ASSERT_NE(view.awaited(u"Full Speed"_s), nullptr);
    EXPECT_EQ(view.named(u"Your Presets"_s), nullptr) << "there are none";
    view.click(u"Full Speed"_s);
    EXPECT_EQ(model.presetName(), u"Full Speed"_s);
    ASSERT_TRUE(view.isGone(u"New Preset"_s));
    view.click(u"Preset"_s);
    view.click(u"New Preset"_s);
    EXPECT_EQ(model.presetName(), u"New Preset"_s);
    EXPECT_TRUE(model.chart()->isEditable());
    model.createPreset();
    view.click(u"Preset"_s);
    double above = 0;
    for (const QString& next : {u"Your Presets"_s, u"New Preset 2"_s, u"Cool"_s, u"Full Speed"_s}) {
        ASSERT_NE(view.awaited(next), nullptr) << next.toStdString();
        const double y = RoomView::middle(*view.named(next)).y();
        EXPECT_GT(y, std::exchange(above, y)) << next.toStdString();
    }
}

TEST_F(CurvesView, CatchesUpWithTheTemperatureOnceItIsSeenAgain) {
    view.rootObject()->setVisible(false);
    state.telemetry().ingest(sampleAt(0, 50, 0, {2000}));
    EXPECT_FALSE(model.chart()->live().isShown);
    view.rootObject()->setVisible(true);
    EXPECT_EQ(model.chart()->live().text, u"50 °C"_s);
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
