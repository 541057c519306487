#include "Core/HistoryTable.h"
#include "Support/QtPrinters.h"
#include "UI/Dashboard/DashboardModel.h"
#include "UI/Dashboard/HistoryChart.h"
#include "UI/DesignSystem/FanGaugeArcs.h"
#include "UI/RoomView.h"
#include "UI/TestState.h"

#include <QFile>
#include <QSignalSpy>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class DashboardViewTest : public testing::Test {
protected:
    void ingest(const TelemetrySample& sample) { state.telemetry().ingest(sample); }
    QList<FanGaugeArcs*> gauges(QQuickItem* below = nullptr) {
        QList<FanGaugeArcs*> found;
        for (QQuickItem* child : (below ? below : view.rootObject())->childItems()) {
            if (auto* gauge = qobject_cast<FanGaugeArcs*>(child))
                found.append(gauge);
            found += gauges(child);
        }
        return found;
    }
    double height() const { return view.rootObject()->implicitHeight(); }

    TestState state;
    DashboardModel model{*state.appState, state.fileDialogs};
    RoomView view{u"Dashboard/DashboardRootView.qml"_s, model, {820, 700}};
};

TEST_F(DashboardViewTest, IsAsHighAsItsContentAndKeepsItsGauges) {
    view.showActive();
    const double loading = height();
    EXPECT_GT(loading, 0);

    ingest(sampleAt(0, 50, 50, {2000, 3000}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return gauges().size() == 2; }, 3000));
    const QList<FanGaugeArcs*> before = gauges();
    const double placeholder = height();
    EXPECT_GT(placeholder, loading);
    state.helper->setState(HelperState::unreachable);
    EXPECT_FALSE(model.helperMissing());
    state.helper->setState(HelperState::notInstalled);
    ASSERT_TRUE(QTest::qWaitFor([&] { return height() > placeholder + 20; }, 3000));

    ingest(sampleAt(2, 50, 50, {6000, 3000}));
    EXPECT_EQ(gauges(), before);
    EXPECT_EQ(before[0]->fraction(), 1);

    ingest(sampleAt(4, 0, 0));
    EXPECT_TRUE(gauges().isEmpty());
    EXPECT_EQ(height(), loading);
}

TEST_F(DashboardViewTest, SaysWhyAFanRunsAsItDoesAndHowThatCameAbout) {
    view.showActive();
    ingest(sampleAt(0, 50, 50, {2000}));
    QQuickItem* reason = view.awaited(u"System control"_s, QAccessible::Button);
    ASSERT_NE(reason, nullptr);
    state.boost(40);
    ASSERT_NE(view.awaited(u"Quick boost, 40%"_s, QAccessible::Button), nullptr);
    EXPECT_EQ(gauges().first()->property("target"), 0.52) << "3120 of 6000";

    const QString chain = u"The quick boost asks for 40%.\n"
                          "3120 rpm asked for, 3120 applied, 2000 measured\n"
                          "The fan is speeding up."_s;
    EXPECT_EQ(view.description(*reason), chain);
    const auto isOpen = [&] { return view.named(chain, QAccessible::StaticText) != nullptr; };
    EXPECT_FALSE(isOpen());
    view.click(u"Quick boost, 40%"_s);
    EXPECT_TRUE(QTest::qWaitFor(isOpen));
    view.press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
    reason->forceActiveFocus(Qt::TabFocusReason);
    view.press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor(isOpen));
    QTest::mouseClick(&view, Qt::LeftButton, {}, {5, 5});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
    EXPECT_TRUE(reason->hasActiveFocus()) << "it has the keyboard again";
}

TEST_F(DashboardViewTest, AChartSpeaksUnderThePointer) {
    view.showActive();
    ingest(sampleAt(0, 50, 40, {2000}));
    ingest(sampleAt(60, 60, 41, {2000}));
    auto* const chart =
        qobject_cast<HistoryChart*>(view.awaited(model.temperatures().spoken, QAccessible::Chart));
    ASSERT_NE(chart, nullptr);
    const auto pointAt = [&](double x) {
        QTest::mouseMove(&view, chart->mapToScene({x, chart->height() / 2}).toPoint());
    };
    pointAt(chart->width() - 5);
    ASSERT_TRUE(QTest::qWaitFor([&] { return chart->readout().isShown; }));
    EXPECT_EQ(chart->readout().text, u"Now  ·  CPU 60 °C  ·  GPU 41 °C"_s);
    ingest(sampleAt(62, 61, 42, {2000}));
    EXPECT_EQ(chart->readout().text, u"Now  ·  CPU 61 °C  ·  GPU 42 °C"_s) << "it stays current";
    pointAt(-30);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !chart->readout().isShown; }));
}

TEST_F(DashboardViewTest, RestsWhileNobodySeesIt) {
    QSignalSpy history(&model, &DashboardModel::historyChanged);
    ingest(sampleAt(0, 50, 50, {2000}));
    ingest(sampleAt(2, 50, 50, {2000}));
    EXPECT_EQ(model.state(), DashboardModel::State::Content);
    EXPECT_EQ(history.size(), 0);
    EXPECT_EQ(model.fans()->rowCount(), 0);

    view.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return history.size() == 1; }, 3000));
    EXPECT_EQ(model.fans()->rowCount(), 1);

    view.rootObject()->setVisible(false);
    ingest(sampleAt(4, 50, 50, {4000}));
    EXPECT_EQ(history.size(), 1);
    view.rootObject()->setVisible(true);
    EXPECT_EQ(history.size(), 2);
    EXPECT_EQ(model.fans()->rows().front().readout, u"4000"_s);
}

TEST_F(DashboardViewTest, SavesTheHistoryOrSaysWhyNot) {
    view.showActive();
    ingest(sampleAt(0, 50, 40, {2000}));
    EXPECT_EQ(view.named(u"Save History…"_s), nullptr) << "nothing to save yet";
    ingest(sampleAt(2, 51, 40, {2100}));
    QQuickItem* const button = view.awaited(u"Save History…"_s, QAccessible::Button);
    ASSERT_NE(button, nullptr);
    button->forceActiveFocus(Qt::TabFocusReason);
    view.press(Qt::Key_Return);
    EXPECT_EQ(state.fileDialogs.asked, FakeFileDialogs::Purpose::save);
    EXPECT_EQ(state.fileDialogs.kind.suffix, u"csv"_s);
    QFile file(state.home.path(u"history.csv"_s));
    EXPECT_TRUE(state.fileDialogs.answer(file.fileName()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), historyTable(state.telemetry().history()));
    FailureNotice& failure = *model.historyExport()->failure();
    EXPECT_FALSE(failure.isShown());

    model.historyExport()->save();
    EXPECT_FALSE(state.fileDialogs.answer(state.home.path(u"no such folder/history.csv"_s)));
    EXPECT_TRUE(failure.isShown());
    EXPECT_FALSE(failure.message().isEmpty());
    view.press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !failure.isShown(); }));
}

} // namespace
} // namespace kestrowind
