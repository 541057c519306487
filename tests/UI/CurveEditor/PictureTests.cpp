#include "UI/BothSchemes.h"
#include "UI/CurveEditor/CurveOwner.h"
#include "UI/RoomView.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(PictureTests, AChartShowsItsAxesTheCurveAndWhatIsPointedAt) {
    struct Row {
        QString name;
        QSize size;
        bool isEditable;
    };
    for (const auto& [name, size, isEditable] : {
             Row{u"CurveEditor/editable"_s, {450 + 64, 200 + 44}, true},
             Row{u"CurveEditor/narrow"_s, {270 + 64, 120 + 44}, false},
         }) {
        // Stored points outside of the axes stand at the plot's edge, and the area ends there.
        CurveOwner owner(FanCurve::fromStoredPoints(
            {{10, 20}, {40, 10}, {60, 50}, {75, 130}, {90, 130}, {100, 70}}));
        owner.chart.setIsEditable(isEditable);
        owner.chart.setLiveTemperature(66);
        RoomView view(u"CurveEditor/FanCurveChart.qml"_s, owner.chart, size);
        view.showActive();
        view.press(Qt::Key_Tab);
        owner.chart.setHoverLocation(QPointF(150, 60));
        const auto items = view.rootObject()->findChildren<QQuickItem*>();
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return std::ranges::any_of(items, [](const QQuickItem* item) {
                return item->property("callout").isValid() && item->opacity() == 1;
            });
        }));
        EXPECT_TRUE(looksLike(name, inBothSchemes(view, *view.engine())));
    }
}

} // namespace
} // namespace kestrowind
