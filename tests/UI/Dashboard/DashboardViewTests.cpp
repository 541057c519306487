#include "Core/HistoryTable.h"
#include "Support/QmlComplaints.h"
#include "UI/Dashboard/DashboardMachine.h"
#include "UI/Dashboard/DashboardModel.h"
#include "UI/DesignSystem/FanGaugeArcs.h"

#include <QAccessible>
#include <QFile>
#include <QQmlEngine>
#include <QQuickView>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>
#include <gmock/gmock.h>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_DashboardPlugin)

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class DashboardViewTest : public testing::Test {
protected:
    DashboardViewTest() {
        view.engine()->addImportPath(u"qrc:/qt/qml"_s);
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setInitialProperties({{u"model"_s, QVariant::fromValue(&model)}});
        view.setSource(QUrl(u"qrc:/qt/qml/Kestrowind/Dashboard/DashboardRootView.qml"_s));
        view.resize(820, 700);
    }

    template <class Item>
    QList<Item*> items() {
        QList<Item*> found;
        collect(view.rootObject(), found);
        return found;
    }

    DashboardMachine machine;
    DashboardModel model{machine.state, machine.fileDialogs};
    QQuickView view;

private:
    template <class Item>
    static void collect(QQuickItem* below, QList<Item*>& found) {
        for (QQuickItem* child : below->childItems()) {
            if (auto* item = qobject_cast<Item*>(child))
                found.append(item);
            collect(child, found);
        }
    }

    QmlComplaints m_complaints;
};

TEST_F(DashboardViewTest, IsAsHighAsItsContentAndKeepsItsGauges) {
    ASSERT_EQ(view.status(), QQuickView::Ready);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    const double loading = view.rootObject()->implicitHeight();
    EXPECT_GT(loading, 0);

    machine.ingest({sampleAt(0, 50, 50, {2000, 3000})});
    ASSERT_TRUE(QTest::qWaitFor([&] { return items<FanGaugeArcs>().size() == 2; }, 3000));
    const QList<FanGaugeArcs*> gauges = items<FanGaugeArcs>();
    const double placeholder = view.rootObject()->implicitHeight();
    EXPECT_GT(placeholder, loading);
    machine.helper().setState(HelperState::notInstalled);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return view.rootObject()->implicitHeight() > placeholder + 20; }, 3000));

    machine.ingest({sampleAt(2, 50, 50, {6550, 3000})});
    EXPECT_EQ(items<FanGaugeArcs>(), gauges);
    EXPECT_EQ(gauges[0]->fraction(), 1);

    machine.ingest({sampleAt(4, 0, 0, {})});
    EXPECT_TRUE(items<FanGaugeArcs>().isEmpty());
    EXPECT_EQ(view.rootObject()->implicitHeight(), loading);
}

TEST_F(DashboardViewTest, RestsWhileNobodySeesIt) {
    QSignalSpy history(&model, &DashboardModel::historyChanged);
    machine.ingest(realisticSamples(5, 1));
    EXPECT_EQ(model.state(), DashboardModel::State::Content);
    EXPECT_EQ(history.size(), 0);
    EXPECT_EQ(model.fans()->rowCount(), 0);

    view.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return history.size() == 1; }, 3000));
    EXPECT_EQ(model.fans()->rowCount(), 1);

    view.rootObject()->setVisible(false);
    machine.ingest({sampleAt(10, 50, 50, {4000})});
    EXPECT_EQ(history.size(), 1);
    view.rootObject()->setVisible(true);
    EXPECT_EQ(history.size(), 2);
    EXPECT_EQ(model.fans()->data(model.fans()->index(0), FanGaugeRows::ReadoutRole), u"4000"_s);
}

TEST_F(DashboardViewTest, SavesTheHistoryOrSaysWhyNot) {
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    const auto button = [this]() -> QQuickItem* {
        for (QQuickItem* item : items<QQuickItem>()) {
            const auto* spoken = QAccessible::queryAccessibleInterface(item);
            if (spoken && spoken->role() == QAccessible::Button && item->isVisible() &&
                spoken->text(QAccessible::Name) == u"Save History…"_s)
                return item;
        }
        return nullptr;
    };
    machine.ingest({sampleAt(0, 50, 40, {2000})});
    EXPECT_EQ(button(), nullptr) << "nothing to save yet";
    machine.ingest({sampleAt(2, 51, 40, {2100})});
    ASSERT_TRUE(QTest::qWaitFor([&] { return button() != nullptr; }));
    button()->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(machine.fileDialogs.asked, FakeFileDialogs::Purpose::save);
    EXPECT_EQ(machine.fileDialogs.kind.suffix, u"csv"_s);
    const QString path = machine.home.path(u"history.csv"_s);
    machine.fileDialogs.answer(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), historyTable(machine.state.telemetry().history()));
    FailureNotice& failure = *model.historyExport()->failure();
    EXPECT_FALSE(failure.isShown());

    model.historyExport()->save();
    machine.fileDialogs.answer(machine.home.path(u"no such folder/history.csv"_s));
    EXPECT_TRUE(failure.isShown());
    EXPECT_FALSE(failure.message().isEmpty());
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !failure.isShown(); }));
}

} // namespace
} // namespace kestrowind
