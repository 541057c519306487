#include "UI/DesignSystem/PaintedItem.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QQmlEngine>
#include <QQuickWindow>
#include <QTest>

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

class Counted final : public PaintedItem {
public:
    explicit Counted(QQmlEngine& engine) {
        QQmlEngine::setContextForObject(this, engine.rootContext());
        classBegin();
        componentComplete();
    }
    void paint(QPainter& /*painter*/) override { ++count; }
    int count = 0;
};

TEST(PaintedItemTests, IsPaintedOnceForEachLookAndNotUnseen) {
    QQmlEngine engine;
    SceneAppearance& appearance = SceneAppearance::of(engine);
    appearance.setForcedScheme(ColorScheme::light);
    QQuickWindow window;
    window.resize(100, 100);
    Counted item(engine);
    item.setSize({20, 20});
    item.setParentItem(window.contentItem());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    static_cast<void>(window.grabWindow());

    struct Row {
        const char* what;
        std::function<void()> change;
        int paints;
    };
    const Row rows[] = {
        {"nothing", [] {}, 0},
        {"a place", [&] { item.setX(5); }, 0},
        {"an opacity", [&] { item.setOpacity(0.5); }, 0},
        {"the same size", [&] { item.setWidth(20); }, 0},
        {"a size", [&] { item.setWidth(30); }, 1},
        {"a scheme", [&] { appearance.setForcedScheme(ColorScheme::dark); }, 1},
        {"the same scheme", [&] { appearance.setForcedScheme(ColorScheme::dark); }, 0},
        {"a look", [&] { Q_EMIT item.lookChanged(); }, 1},
        {"hidden", [&] { item.setVisible(false); }, 0},
        {"a look, hidden", [&] { Q_EMIT item.lookChanged(); }, 0},
        {"shown", [&] { item.setVisible(true); }, 1},
        {"empty", [&] { item.setWidth(0); }, 0},
        {"no longer empty", [&] { item.setWidth(10); }, 1},
    };
    for (const Row& row : rows) {
        item.count = 0;
        row.change();
        static_cast<void>(window.grabWindow());
        EXPECT_EQ(item.count, row.paints) << row.what;
    }
}

} // namespace
} // namespace kestrowind
