#include "UI/MenuBar/FlowArrangement.h"

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

struct Row {
    const char* name;
    std::optional<double> width;
    QList<QSizeF> sizes;
    QSizeF measured;
    QList<QPointF> placed; ///< from (10, 20)
};

TEST(FlowArrangementTest, WrapsLikeWords) {
    const FlowArrangement flow{.spacing = 6, .rowSpacing = 8};
    const Row rows[] = {
        {"none", 100, {}, {0, 0}, {}},
        {"all fit exactly", 56, {{30, 10}, {20, 12}}, {56, 12}, {{10, 20}, {46, 20}}},
        {"one point too narrow", 55, {{30, 10}, {20, 12}}, {30, 30}, {{10, 20}, {10, 38}}},
        {"the widest row and the tallest of each",
         60,
         {{30, 10}, {20, 14}, {50, 8}, {40, 9}},
         {56, 47},
         {{10, 20}, {46, 20}, {10, 42}, {10, 58}}},
        {"too wide in the middle",
         60,
         {{20, 10}, {90, 10}, {20, 10}},
         {90, 46},
         {{10, 20}, {10, 38}, {10, 56}}},
        {"without a limit", std::nullopt, {{300, 10}, {400, 12}}, {706, 12}, {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(flow.measured(row.sizes, row.width), row.measured) << row.name;
        if (row.width) {
            EXPECT_EQ(flow.placed(row.sizes, {10, 20, *row.width, 500}), row.placed) << row.name;
        }
    }
}

} // namespace
} // namespace kestrowind
