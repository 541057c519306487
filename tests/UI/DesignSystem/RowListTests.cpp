#include "UI/DesignSystem/RowListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gmock/gmock.h>

#include <array>

namespace kestrowind {
namespace {

struct Letter {
    char key = 0;
    int value = 0;
    bool operator==(const Letter&) const = default;
};

using Letters = QList<Letter>;

TEST(RowListTest, TellsHowTheRowsBecomeOthers) {
    struct Case {
        Letters before, after;
        int removed, moved, inserted, changed;
        QList<int> kept; ///< where each row of before is afterwards; -1 when it went
    };
    const Letters abc{{'a'}, {'b'}, {'c'}};
    for (const auto& [before, after, removed, moved, inserted, changed, kept] : {
             Case{abc, abc, 0, 0, 0, 0, {0, 1, 2}},
             Case{{}, abc, 0, 0, 3, 0, {}},
             Case{abc, {}, 3, 0, 0, 0, {-1, -1, -1}},
             Case{abc, {{'a'}, {'b', 7}, {'c'}}, 0, 0, 0, 1, {0, 1, 2}},
             Case{abc, {{'c'}, {'a'}, {'b'}}, 0, 1, 0, 0, {1, 2, 0}},
             Case{abc, {{'b'}, {'x'}, {'c', 7}}, 1, 0, 1, 1, {-1, 0, 2}},
             // Equal keys are told apart by their order, and the last ones go first.
             Case{{{'a', 1}, {'a', 2}, {'b'}}, {{'a', 1}, {'b'}}, 1, 1, 0, 0, {0, -1, 1}},
             Case{{{'a', 1}, {'b'}}, {{'a', 1}, {'a', 2}, {'b'}}, 0, 0, 1, 0, {0, 2}},
         }) {
        RowListModel<Letter, &Letter::key> list;
        const QAbstractItemModelTester tester(
            &list, QAbstractItemModelTester::FailureReportingMode::Fatal);
        list.setRows(before);
        QList<QPersistentModelIndex> rows;
        for (int row = 0; row < before.size(); ++row)
            rows.append(list.index(row));
        const QSignalSpy removals(&list, &RowList::rowsRemoved);
        const QSignalSpy moves(&list, &RowList::rowsMoved);
        const QSignalSpy insertions(&list, &RowList::rowsInserted);
        const QSignalSpy changes(&list, &RowList::dataChanged);
        const QSignalSpy counts(&list, &RowList::countChanged);

        list.setRows(after);
        EXPECT_EQ(list.rows(), after);
        EXPECT_THAT((std::array{removals.size(), moves.size(), insertions.size(), changes.size()}),
                    testing::ElementsAre(removed, moved, inserted, changed));
        EXPECT_EQ(counts.size(), before.size() == after.size() ? 0 : 1);
        for (int row = 0; row < before.size(); ++row)
            EXPECT_EQ(rows[row].isValid() ? rows[row].row() : -1, kept[row]) << row;
        for (int row = 0; row < after.size(); ++row)
            EXPECT_EQ(list.index(row).data(RowList::RowRole).value<Letter>(), after[row]);
    }
}

TEST(RowListTest, FindsTheFirstRow) {
    RowListModel<Letter, &Letter::key> list;
    list.setRows({{'a', 1}, {'b', 2}, {'c', 2}});
    EXPECT_EQ(list.find('c'), 2);
    EXPECT_EQ(list.find(2, &Letter::value), 1);
    EXPECT_EQ(list.find(3, &Letter::value), -1);
}

} // namespace
} // namespace kestrowind
