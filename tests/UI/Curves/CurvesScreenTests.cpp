#include "Support/QtPrinters.h"
#include "UI/Curves/CurveEditHistory.h"
#include "UI/Curves/CurvesModel.h"
#include "UI/RoomView.h"
#include "UI/TestState.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <utility>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const FanCurve ramp({{40, 20}, {60, 50}, {80, 100}});

class CurvesScreen : public testing::Test {
protected:
    /// The screen as it appears, with user presets of these names.
    void open(const QStringList& names = {}, const QList<FanCurve>& curves = {ramp}) {
        model.reset();
        state = std::make_unique<TestState>();
        for (const QString& name : names) {
            auto preset = *state->presets().addPreset(name);
            preset.curves = curves;
            state->presets().update(preset);
        }
        reopen();
    }
    void reopen() {
        model.reset();
        model = std::make_unique<CurvesModel>(*state->appState, history, nudgePause);
        chart = model->chart();
        chart->setSize({450 + 64, 200 + 44}); // 5 points a degree, 2 a percent
    }
    void chooseUser(int row) { model->select(model->userPresets()->rows()[row].identifier); }
    void chooseCool() { model->select(model->builtInPresets()->rows().first().identifier); }
    void sample(double temperature, int fanCount) {
        const std::vector<double> speeds(static_cast<std::size_t>(fanCount), 2000);
        state->telemetry().ingest(sampleAt(0, temperature, 0, speeds));
    }
    /// Another after every write, which replaces the file.
    [[nodiscard]] ino_t fileNumber() const {
        struct stat status = {};
        EXPECT_EQ(::stat(qPrintable(state->home.path(u"presets.json"_s)), &status), 0);
        return status.st_ino;
    }
    [[nodiscard]] QList<FanCurve> stored() const {
        return state->presets().preset(*model->selectedPresetID())->curves;
    }

    std::chrono::milliseconds nudgePause = 0ms;
    std::unique_ptr<TestState> state;
    CurveEditHistory history;
    std::unique_ptr<CurvesModel> model;
    FanCurveChartModel* chart = nullptr;
};

TEST_F(CurvesScreen, ChoosesWhatIsChosenElseActiveElseTheUsersElseCool) {
    open();
    EXPECT_EQ(model->presetName(), u"Cool"_s);
    EXPECT_TRUE(model->isBuiltIn());
    EXPECT_EQ(model->chartHelp(), qtTrId("curves.chart.readOnlyHelp"));

    open({u"A"_s, u"B"_s});
    EXPECT_EQ(model->presetName(), u"A"_s);
    EXPECT_TRUE(model->builtInNote().isEmpty());
    EXPECT_EQ(model->chartHelp(), qtTrId("curves.chart.editableHelp"));
    state->presets().setActivePresetID(FanPreset::fullSpeedID);
    EXPECT_EQ(model->presetName(), u"A"_s) << "independent of the active one";
    reopen();
    EXPECT_EQ(model->presetName(), u"Full Speed"_s);
    EXPECT_FALSE(model->builtInNote().isEmpty());
    chooseUser(1);
    EXPECT_EQ(model->userPresets()->rows()[1],
              (Choice{PresetSlot::preset(*model->selectedPresetID()).id(), u"B"_s,
                      model->shownPreset()->symbolName, true}));
    model->select(u"automatic"_s);
    EXPECT_EQ(model->presetName(), u"B"_s);
    state->presets().remove(*model->shownPreset());
    EXPECT_EQ(model->presetName(), u"Full Speed"_s);
    EXPECT_FALSE(chart->isEditable());
    state->presets().setActivePresetID(FanPreset::coolID);
    EXPECT_EQ(model->presetName(), u"Cool"_s) << "what was chosen is gone";
    EXPECT_EQ(chart->curve().points().size(), 6);
}

TEST_F(CurvesScreen, StoresAndPushesADragOnceItIsLetGo) {
    open({u"A"_s});
    state->presets().setActivePresetID(model->selectedPresetID());
    sample(60, 2);
    const ino_t untouched = fileNumber();
    chart->drag(1, {220, 90});
    chart->drag(1, {390, 20});
    EXPECT_EQ(chart->curve().points()[1], (FanCurvePoint{79, 90}));
    EXPECT_EQ(stored(), QList<FanCurve>{ramp});
    EXPECT_FALSE(model->canUndo());
    EXPECT_EQ(fileNumber(), untouched) << "not written at all";

    chart->release({200, 80});
    EXPECT_EQ(stored(), QList<FanCurve>(2, chart->curve())) << "once for each fan";
    EXPECT_NE(fileNumber(), untouched);
    EXPECT_FALSE(model->draftPreset());
    const auto pushed = [&] { return state->engine().requestedPercents(); };
    EXPECT_EQ(pushed(), QList<double>({50, 50})) << "a moment later";
    EXPECT_TRUE(QTest::qWaitFor([&] { return pushed() == QList<double>({60, 60}); }, 3000));
}

TEST_F(CurvesScreen, DiscardsADragThatIsCancelledOrLeft) {
    open({u"A"_s, u"B"_s});
    const ino_t before = fileNumber();
    const auto end = [&](const std::function<void()>& how) {
        chooseUser(0);
        chart->drag(1, {300, 20});
        ASSERT_TRUE(model->draftPreset());
        how();
        EXPECT_FALSE(model->draftPreset());
        chart->drag(99, {300, 20});
        EXPECT_EQ(chart->draggedPoint(), -1);
        EXPECT_EQ(chart->curve(), model->shownPreset()->curves.value(0));
        EXPECT_EQ(fileNumber(), before);
    };
    end([&] { chart->cancelDrag(); });
    end([&] { chooseUser(1); });
    EXPECT_EQ(chart->currentPoint(), 0) << "another curve, from its beginning";
    end([&] { chooseCool(); });
    chooseUser(0);
    chart->drag(1, {300, 20});
    state->presets().remove(*state->presets().preset(*model->selectedPresetID()));
    EXPECT_EQ(chart->draggedPoint(), -1) << "the other preset is not dragged on";
    EXPECT_EQ(chart->curve(), ramp);
}

TEST_F(CurvesScreen, AddsAndDeletesWithinTheRules) {
    open({u"A"_s}, {ramp, FanCurve({{20, 100}})});
    sample(50, 1);
    Q_EMIT chart->addPoint({41.5, 50});
    EXPECT_EQ(stored().size(), 2) << "too close: nothing is written";
    chart->click({50, 40});
    EXPECT_EQ(stored(), QList<FanCurve>{FanCurve({{30, 80}, {40, 20}, {60, 50}, {80, 100}})});
    for (const int none : {4, -1})
        Q_EMIT chart->deletePointRequested(none);
    for (const int left : {3, 2, 1, 1}) {
        chart->deletePoint(0);
        EXPECT_EQ(stored()[0].points().size(), left);
    }
    chooseCool();
    const ino_t before = fileNumber();
    Q_EMIT chart->addPoint({90, 50});
    Q_EMIT chart->movePoint(0, {90, 50}, true);
    Q_EMIT chart->deletePointRequested(0);
    EXPECT_EQ(chart->curve().points().size(), 6);
    EXPECT_EQ(fileNumber(), before);
}

TEST_F(CurvesScreen, TakesEditsBackAndMakesThemAgain) {
    const QList<FanCurve> asFound{ramp, FanCurve({{20, 100}})};
    open({u"A"_s, u"B"_s}, asFound);
    sample(50, 2);
    chart->pressKey(0, Qt::Key_Right, Qt::NoModifier);
    chart->deletePoint(1);
    const QList<FanCurve> edited = stored();
    chooseUser(1);
    EXPECT_FALSE(model->canUndo()) << "each preset has its own";
    reopen();
    chooseUser(0);
    model->undo();
    EXPECT_EQ(stored()[0].points().size(), 3) << "for the run of the application";
    model->undo();
    EXPECT_EQ(stored(), asFound) << "exactly, also what the screen does not show";
    EXPECT_FALSE(model->canUndo());
    model->undo();
    model->redo();
    chart->drag(0, {100, 100});
    EXPECT_FALSE(model->canUndo() || model->canRedo());
    chart->cancelDrag();
    model->redo();
    EXPECT_EQ(stored(), edited);
    EXPECT_FALSE(model->canRedo());
    EXPECT_THAT(CurvesModel::undoHelp().toStdString(), testing::HasSubstr("Ctrl+Z"));
    EXPECT_THAT(CurvesModel::redoHelp().toStdString(), testing::HasSubstr("Ctrl+Shift+Z"));
    model->undo();
    chart->pressKey(0, Qt::Key_Up, Qt::NoModifier);
    EXPECT_FALSE(model->canRedo()) << "the future is another";
    model->undo();

    FanPreset foreign = *model->shownPreset();
    foreign.curves = {FanCurve({{50, 50}})};
    state->presets().update(foreign);
    EXPECT_EQ(chart->curve(), foreign.curves[0]);
    EXPECT_FALSE(model->canUndo() || model->canRedo()) << "what others changed is not ours";
}

TEST_F(CurvesScreen, StoresARowOfNudgesAsOneEdit) {
    nudgePause = 1h;
    open({u"A"_s, u"B"_s});
    const auto nudge = [&](int point, int times) {
        for (int time = 0; time < times; ++time)
            chart->pressKey(point, Qt::Key_Up, Qt::NoModifier);
    };
    const auto percents = [&] {
        QList<double> list;
        for (const FanCurvePoint& point : state->presets().presets().last().curves[0].points())
            list.append(point.percent);
        return list;
    };
    chooseUser(1);
    const ino_t before = fileNumber();
    nudge(2, 1); // at the top already
    EXPECT_FALSE(model->canUndo());
    nudge(1, 3);
    EXPECT_EQ(chart->curve().points()[1].percent, 53);
    EXPECT_EQ(fileNumber(), before);
    EXPECT_TRUE(model->canUndo());
    model->undo();
    EXPECT_EQ(chart->curve(), ramp);
    EXPECT_FALSE(model->canUndo());

    // Whatever comes next, nothing is lost.
    nudge(1, 3);
    nudge(0, 1);
    EXPECT_EQ(percents(), QList<double>({20, 53, 100})) << "another point";
    chart->drag(2, {300, 100});
    EXPECT_EQ(percents(), QList<double>({21, 53, 100}));
    chart->cancelDrag();
    nudge(1, 1);
    chooseUser(0);
    EXPECT_EQ(percents(), QList<double>({21, 54, 100}));
    chooseUser(1);
    nudge(1, 1);
    FanPreset renamed = state->presets().presets().last();
    renamed.name = u"C"_s;
    state->presets().update(renamed);
    chart->deletePoint(2);
    EXPECT_EQ(percents(), QList<double>({21, 55}));
    EXPECT_EQ(state->presets().presets().last().name, u"C"_s);
    nudge(1, 1);
    nudgePause = 1ms;
    reopen();
    EXPECT_EQ(percents(), QList<double>({21, 56}));

    chooseUser(1);
    nudge(1, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return percents() == QList<double>({21, 57}); }));
}

TEST(CurveEditHistories, ForgetTheOldestEditsAndDeletedPresets) {
    CurveEditHistory history;
    const QUuid id = QUuid::createUuid();
    const auto curves = [](qsizetype n) {
        return QList<FanCurve>{FanCurve({{30, static_cast<double>(n)}})};
    };
    const qsizetype edits = CurveEditHistory::longest + 5;
    history.record(id, curves(0), curves(0));
    EXPECT_FALSE(history.canUndo(id, curves(0)));
    for (qsizetype n = 0; n < edits; ++n)
        history.record(id, curves(n), curves(n + 1));
    qsizetype now = edits;
    while (history.undo(id, curves(now)))
        --now;
    EXPECT_EQ(now, 5);

    history.keepOnly({{.id = id}});
    EXPECT_TRUE(history.canRedo(id, curves(now)));
    history.keepOnly({});
    EXPECT_FALSE(history.canRedo(id, curves(now)));
}

class CurvesView : public CurvesScreen {
protected:
    CurvesView() {
        open();
        view = std::make_unique<RoomView>(u"Curves/CurvesRootView.qml"_s, *model, QSize(820, 600));
        view->showActive();
    }
    ~CurvesView() override { view.reset(); }

    std::unique_ptr<RoomView> view;
};

TEST_F(CurvesView, CustomizesEditsAndUndoesByPointerAndKeys) {
    const QString howToEdit = qtTrId("curves.hint.howToEdit");
    EXPECT_EQ(view->named(howToEdit), nullptr) << "it cannot be edited";
    const auto place = [&] {
        static_cast<void>(view->grabWindow());
        const QQuickItem* curve = view->named(u"Fan curve"_s);
        return curve->mapRectToScene(curve->boundingRect());
    };
    const QRectF before = place();
    view->click(u"Customize"_s);
    EXPECT_EQ(model->presetName(), u"Cool Copy"_s);
    EXPECT_EQ(place(), before) << "the chart stays where it is";
    EXPECT_EQ(view->named(u"Customize"_s), nullptr);
    EXPECT_NE(view->named(howToEdit), nullptr);

    view->click(u"Point 3"_s);
    view->press(Qt::Key_Up);
    const auto third = [&] { return chart->curve().points()[2].percent; };
    EXPECT_EQ(third(), 31);
    for (const auto& [key, modifiers] : {std::pair(Qt::Key_Y, Qt::ControlModifier | Qt::NoModifier),
                                         {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier}}) {
        view->press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(third(), 30);
        view->press(key, modifiers);
        EXPECT_EQ(third(), 31);
    }
    view->click(u"Undo"_s);
    EXPECT_EQ(third(), 30);
    view->click(u"Redo"_s);
    EXPECT_EQ(third(), 31);
}

TEST_F(CurvesView, PicksAndMakesPresetsUpToTheLimitInItsMenu) {
    view->click(u"Preset"_s);
    ASSERT_NE(view->awaited(u"Full Speed"_s), nullptr);
    EXPECT_EQ(view->named(u"Your Presets"_s), nullptr) << "there are none";
    view->click(u"Full Speed"_s);
    EXPECT_EQ(model->presetName(), u"Full Speed"_s);
    ASSERT_TRUE(view->isGone(u"New Preset"_s));
    view->click(u"Preset"_s);
    view->click(u"New Preset"_s);
    EXPECT_EQ(model->presetName(), u"New Preset"_s);
    model->createPreset();
    view->click(u"Preset"_s);
    double above = 0;
    for (const QString& next : {u"Your Presets"_s, u"New Preset 2"_s, u"Cool"_s, u"Full Speed"_s}) {
        ASSERT_NE(view->awaited(next), nullptr) << next.toStdString();
        const double y = RoomView::middle(*view->named(next)).y();
        EXPECT_GT(y, std::exchange(above, y)) << next.toStdString();
    }
    EXPECT_FALSE(state->presets().activePresetID());
    model->duplicateForEditing(); // it can be edited as it is
    EXPECT_TRUE(model->canAddPreset());
    model->createPreset();
    EXPECT_FALSE(model->canAddPreset());
    chooseCool();
    EXPECT_THAT(model->customizeHelp().toStdString(), testing::HasSubstr("3"));
    model->createPreset();
    model->duplicateForEditing();
    EXPECT_EQ(model->presetName(), u"Cool"_s);
}

TEST_F(CurvesView, CatchesUpWithTheTemperatureAndTheFanOnceItIsSeenAgain) {
    view->rootObject()->setVisible(false);
    sample(50, 2);
    EXPECT_FALSE(chart->live().isShown);
    view->rootObject()->setVisible(true);
    EXPECT_EQ(chart->live().text, u"50 °C"_s);
    chart->setCurrentPoint(2);
    chart->setHasKeyboardFocus(true);
    EXPECT_EQ(chart->callout().text, u"55 °C · 30% · about 2,640 rpm"_s);
    sample(70, 0);
    EXPECT_EQ(chart->live().text, u"70 °C"_s);
    EXPECT_EQ(chart->callout().text, u"55 °C · 30%"_s);
    view->rootObject()->setVisible(false);
    sample(80, 2);
    EXPECT_EQ(chart->live().text, u"70 °C"_s);
    model->setView(nullptr);
    EXPECT_EQ(chart->live().text, u"80 °C"_s);
}

TEST_F(CurvesScreen, ShowsTheBoostThatIsAndThatComes) {
    open();
    state->engine().setQuickBoostPercent(30);
    reopen();
    EXPECT_EQ(chart->boostPercent(), 30);
    state->engine().setQuickBoostPercent(0);
    EXPECT_EQ(chart->boostPercent(), 0);
}

TEST_F(CurvesView, GivesAHighWindowToTheChart) {
    const double height = chart->plot().height();
    const double natural = view->rootObject()->implicitHeight();
    EXPECT_GT(height, 250);
    view->resize(820, static_cast<int>(natural) + 150);
    EXPECT_TRUE(QTest::qWaitFor([&] { return chart->plot().height() > height; }, 3000));
    EXPECT_EQ(view->rootObject()->implicitHeight(), natural);
}

} // namespace
} // namespace kestrowind
