#include "Core/PresetCoding.h"
#include "UI/Curves/CurveEditHistory.h"
#include "UI/Curves/CurvesModel.h"
#include "UI/TestState.h"

#include <QFile>
#include <QTest>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const FanCurve ramp({{40, 20}, {60, 50}, {80, 100}});

FanPreset preset(const QString& name, const QList<FanCurve>& curves = {ramp}) {
    return {.id = QUuid::createUuid(),
            .name = name,
            .symbolName = u"wind"_s,
            .curves = curves,
            .isBuiltIn = false};
}

class CurvesScreen : public testing::Test {
protected:
    /// The screen as it appears, with these user presets.
    CurvesModel& open(const QList<FanPreset>& presets = {}) {
        state = std::make_unique<TestState>(QStringList(), [&](const QString& folder) {
            QFile file(folder + u"/presets.json"_s);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(encodePresets(presets).value());
        });
        return reopen();
    }
    CurvesModel& reopen() {
        model.reset();
        model = std::make_unique<CurvesModel>(*state->appState, history, nudgePause);
        model->chart()->setSize({450 + 64, 200 + 44}); // 5 points a degree, 2 a percent
        return *model;
    }
    void chooseUser(int row) { model->select(model->userPresets()->rows()[row].identifier); }
    void chooseCool() { model->select(model->builtInPresets()->rows().first().identifier); }
    void sample(double temperature, int fanCount) {
        const std::vector<double> speeds(static_cast<std::size_t>(fanCount), 2000);
        state->telemetry().ingest(sampleAt(0, temperature, 0, speeds, 6001));
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
};

TEST_F(CurvesScreen, ChoosesWhatIsChosenElseActiveElseTheUsersElseCool) {
    open();
    EXPECT_EQ(model->presetName(), u"Cool"_s);
    EXPECT_TRUE(model->isBuiltIn());
    EXPECT_FALSE(model->builtInNote().isEmpty());
    const QString readOnlyHelp = model->chartHelp();
    EXPECT_FALSE(model->chart()->isEditable());

    open({preset(u"A"_s), preset(u"B"_s)});
    EXPECT_EQ(model->presetName(), u"A"_s);
    EXPECT_TRUE(model->chart()->isEditable());
    EXPECT_TRUE(model->builtInNote().isEmpty());
    EXPECT_NE(model->chartHelp(), readOnlyHelp);
    state->presets().setActivePresetID(FanPreset::fullSpeedID);
    EXPECT_EQ(model->presetName(), u"A"_s) << "independent of the active one";
    EXPECT_EQ(reopen().presetName(), u"Full Speed"_s);
    chooseUser(1);
    EXPECT_EQ(model->presetName(), u"B"_s);
    EXPECT_EQ(
        model->userPresets()->rows()[1],
        (Choice{PresetSlot::preset(*model->selectedPresetID()).id(), u"B"_s, u"wind"_s, true}));
    EXPECT_EQ(model->builtInPresets()->rowCount(), 2);
    model->select(u"automatic"_s);
    EXPECT_EQ(model->presetName(), u"B"_s);
    state->presets().remove(*model->shownPreset());
    EXPECT_EQ(model->presetName(), u"Full Speed"_s);
    EXPECT_TRUE(model->isBuiltIn());
    state->presets().setActivePresetID(FanPreset::coolID);
    EXPECT_EQ(model->presetName(), u"Cool"_s) << "what was chosen is gone";
}

TEST_F(CurvesScreen, MakesPresetsUpToTheLimitUnderNamesOfTheirOwn) {
    open({preset(u"New Preset"_s)});
    model->createPreset();
    EXPECT_EQ(model->presetName(), u"New Preset 2"_s);
    EXPECT_FALSE(state->presets().activePresetID());
    chooseCool();
    model->duplicateForEditing();
    EXPECT_EQ(model->presetName(), u"Cool Copy"_s);
    EXPECT_EQ(model->chart()->curve().points().size(), 6);
    model->duplicateForEditing();
    EXPECT_EQ(state->presets().presets().size(), 5) << "a copy is no built-in";

    EXPECT_FALSE(model->canAddPreset());
    chooseCool();
    EXPECT_THAT(model->customizeHelp().toStdString(), testing::HasSubstr("3"));
    model->createPreset();
    model->duplicateForEditing();
    EXPECT_EQ(state->presets().presets().size(), 5);
    EXPECT_EQ(model->presetName(), u"Cool"_s);
}

TEST_F(CurvesScreen, KeepsADragToItselfUntilItIsLetGo) {
    open({preset(u"A"_s)});
    sample(50, 2);
    const ino_t untouched = fileNumber();
    for (int step = 0; step < 40; ++step) {
        model->chart()->drag(1, {200.0 + step, 100.0 - step});
        EXPECT_EQ(stored(), QList<FanCurve>{ramp});
        ASSERT_TRUE(model->draftPreset());
        EXPECT_FALSE(model->canUndo());
    }
    model->chart()->drag(1, {390, 20});
    EXPECT_EQ(model->chart()->curve().points()[1], (FanCurvePoint{79, 90}));
    EXPECT_EQ(fileNumber(), untouched) << "not written at all";

    model->chart()->release({390, 20});
    EXPECT_EQ(stored(), QList<FanCurve>(2, model->chart()->curve())) << "once for each fan";
    EXPECT_NE(fileNumber(), untouched);
    EXPECT_FALSE(model->draftPreset());
}

TEST_F(CurvesScreen, PushesAnEditToTheFansOfTheActivePreset) {
    open({preset(u"A"_s)});
    state->presets().setActivePresetID(model->selectedPresetID());
    sample(60, 2);
    const ControlEngine& engine = state->engine();
    EXPECT_EQ(engine.requestedPercents(), QList<double>({50, 50}));
    model->chart()->pressKey(1, Qt::Key_Up, Qt::ShiftModifier);
    model->chart()->pressKey(1, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(engine.requestedPercents(), QList<double>({50, 50})) << "a moment later";
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return engine.requestedPercents() == QList<double>({60, 60});
        },
        3000));
}

TEST_F(CurvesScreen, DiscardsADragThatIsCancelledOrLeft) {
    open({preset(u"A"_s), preset(u"B"_s)});
    const ino_t before = fileNumber();
    const auto end = [&](const std::function<void()>& how) {
        chooseUser(0);
        model->chart()->drag(1, {300, 20});
        ASSERT_TRUE(model->draftPreset());
        how();
        EXPECT_FALSE(model->draftPreset());
        EXPECT_EQ(model->chart()->draggedPoint(), -1);
        EXPECT_EQ(model->chart()->curve(), model->shownPreset()->curves.value(0));
        model->chart()->drag(99, {300, 20});
        model->chart()->release({300, 20});
        EXPECT_EQ(fileNumber(), before);
    };
    end([&] { model->chart()->cancelDrag(); });
    end([&] { chooseUser(1); });
    EXPECT_EQ(model->chart()->currentPoint(), 0) << "another curve, from its beginning";
    end([&] { chooseCool(); });
    chooseUser(0);
    model->chart()->drag(1, {300, 20});
    state->presets().remove(*state->presets().preset(*model->selectedPresetID()));
    EXPECT_EQ(model->chart()->draggedPoint(), -1) << "the other preset is not dragged on";
    EXPECT_EQ(model->presetName(), u"B"_s);
    EXPECT_EQ(model->chart()->curve(), ramp);
}

TEST_F(CurvesScreen, AddsAndDeletesWithinTheRules) {
    open({preset(u"A"_s, {ramp, FanCurve({{20, 100}})})});
    sample(50, 1);
    Q_EMIT model->chart()->addPoint({41.5, 50});
    EXPECT_EQ(stored().size(), 2) << "too close: nothing is written";
    model->chart()->click({50, 40});
    EXPECT_EQ(stored(), QList<FanCurve>{FanCurve({{30, 80}, {40, 20}, {60, 50}, {80, 100}})});
    Q_EMIT model->chart()->addPoint({200, -5});
    EXPECT_EQ(stored()[0].points().last(), (FanCurvePoint{110, 0}));
    while (stored()[0].points().size() > 1)
        model->chart()->deletePoint(0);
    model->chart()->deletePoint(0);
    EXPECT_EQ(stored(), QList<FanCurve>{FanCurve({{110, 0}})});
    Q_EMIT model->chart()->addPoint({40, 40});
    for (const int none : {5, 2, -1})
        Q_EMIT model->chart()->deletePointRequested(none);
    EXPECT_EQ(stored()[0].points().size(), 2);
    model->chart()->deletePoint(0);
    EXPECT_EQ(stored()[0].points().size(), 1);

    chooseCool();
    const ino_t before = fileNumber();
    Q_EMIT model->chart()->addPoint({90, 50});
    Q_EMIT model->chart()->movePoint(0, {90, 50}, true);
    Q_EMIT model->chart()->deletePointRequested(0);
    EXPECT_EQ(model->chart()->curve().points().size(), 6);
    EXPECT_EQ(fileNumber(), before);
}

TEST_F(CurvesScreen, TakesEditsBackAndMakesThemAgain) {
    const QList<FanCurve> asFound{ramp, FanCurve({{20, 100}})};
    open({preset(u"A"_s, asFound), preset(u"B"_s)});
    sample(50, 2);
    EXPECT_FALSE(model->canUndo());
    model->chart()->pressKey(0, Qt::Key_Right, Qt::NoModifier);
    model->chart()->deletePoint(1);
    const QList<FanCurve> edited = stored();
    chooseUser(1);
    EXPECT_FALSE(model->canUndo()) << "each preset has its own";
    reopen();
    chooseUser(0);
    EXPECT_TRUE(model->canUndo()) << "for the run of the application";
    model->undo();
    EXPECT_EQ(stored()[0].points().size(), 3);
    model->undo();
    EXPECT_EQ(stored(), asFound) << "exactly, also what the screen does not show";
    EXPECT_FALSE(model->canUndo());
    model->undo();
    model->redo();
    model->chart()->drag(0, {100, 100});
    EXPECT_FALSE(model->canUndo() || model->canRedo());
    model->chart()->cancelDrag();
    model->redo();
    EXPECT_EQ(stored(), edited);
    EXPECT_THAT(CurvesModel::undoHelp().toStdString(), testing::HasSubstr("Ctrl+Z"));
    EXPECT_THAT(CurvesModel::redoHelp().toStdString(), testing::HasSubstr("Ctrl+Shift+Z"));
    EXPECT_FALSE(model->canRedo());
    model->undo();
    model->chart()->pressKey(0, Qt::Key_Up, Qt::NoModifier);
    EXPECT_FALSE(model->canRedo()) << "the future is another";
    model->undo();

    FanPreset foreign = *model->shownPreset();
    foreign.curves = {FanCurve({{50, 50}})};
    state->presets().update(foreign);
    EXPECT_EQ(model->chart()->curve(), foreign.curves[0]);
    EXPECT_FALSE(model->canUndo() || model->canRedo()) << "what others changed is not ours";
}

TEST_F(CurvesScreen, StoresARowOfNudgesAsOneEdit) {
    nudgePause = 1h;
    open({preset(u"A"_s), preset(u"B"_s)});
    const auto nudge = [&](int point, int times) {
        for (int time = 0; time < times; ++time)
            model->chart()->pressKey(point, Qt::Key_Up, Qt::NoModifier);
    };
    const auto percents = [&] {
        QList<double> list;
        for (const FanCurvePoint& point : state->presets().presets().last().curves[0].points())
            list.append(point.percent);
        return list;
    };
    chooseUser(1);
    const ino_t before = fileNumber();
    nudge(2, 5); // at the top already
    EXPECT_FALSE(model->canUndo());
    nudge(1, 300);
    EXPECT_EQ(model->chart()->curve().points()[1].percent, 100);
    EXPECT_EQ(fileNumber(), before);
    EXPECT_TRUE(model->canUndo());
    model->undo();
    EXPECT_EQ(model->chart()->curve(), ramp);
    EXPECT_FALSE(model->canUndo());

    // Whatever comes next, nothing is lost.
    nudge(1, 3);
    nudge(0, 1);
    EXPECT_EQ(percents(), QList<double>({20, 53, 100})) << "another point";
    model->chart()->drag(2, {300, 100});
    EXPECT_EQ(percents(), QList<double>({21, 53, 100}));
    model->chart()->cancelDrag();
    nudge(1, 1);
    chooseUser(0);
    EXPECT_EQ(percents(), QList<double>({21, 54, 100}));
    chooseUser(1);
    nudge(1, 1);
    FanPreset renamed = state->presets().presets().last();
    renamed.name = u"C"_s;
    state->presets().update(renamed);
    model->chart()->deletePoint(2);
    EXPECT_EQ(percents(), QList<double>({21, 55}));
    EXPECT_EQ(state->presets().presets().last().name, u"C"_s);
    nudge(1, 1);
    model.reset();
    EXPECT_EQ(percents(), QList<double>({21, 56}));

    nudgePause = 1ms;
    reopen();
    chooseUser(1);
    nudge(1, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return percents() == QList<double>({21, 57}); }));
    state->presets().remove(state->presets().presets().last());
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

TEST_F(CurvesScreen, ShowsTheTemperatureAndAFanOnlyWhileSeen) {
    open({preset(u"A"_s)});
    EXPECT_FALSE(model->chart()->live().isShown);
    sample(50, 2);
    EXPECT_EQ(model->chart()->live().temperature, 50);
    model->chart()->drag(1, {200, 120});
    EXPECT_EQ(model->chart()->callout().text, u"60 °C · 40% · about 3,120 rpm"_s);
    model->chart()->cancelDrag();
    QQuickItem hidden;
    model->setView(&hidden);
    sample(70, 2);
    EXPECT_EQ(model->chart()->live().temperature, 50);
    model->setView(nullptr);
    EXPECT_EQ(model->chart()->live().temperature, 70);
}

} // namespace
} // namespace kestrowind
