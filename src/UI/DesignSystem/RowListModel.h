#pragma once

#include "UI/DesignSystem/RowList.h"

#include <QList>

#include <algorithm>
#include <functional>

namespace kestrowind {

/// A list of values. A projection of the row, the key, says which rows are the same: new rows are
/// told as the removals, moves, insertions and changes that lead to them, so that what shows a row
/// stays with it and hears of real changes only. Rows with equal keys are the same in their order.
///
/// Rows are told one by one, as suits the lists of a screen. Belongs to the main thread.
template <class Row, auto key>
class RowListModel final : public RowList {
public:
    using RowList::RowList;

    [[nodiscard]] const QList<Row>& rows() const { return m_rows; }

    /// Of the first row whose projection equals the value; -1 when there is none.
    template <class Value, class Projection = decltype(key)>
    [[nodiscard]] int find(const Value& value, Projection projection = key) const {
        return position(m_rows, 0, value, projection);
    }

    void setRows(const QList<Row>& rows) {
        const int oldCount = count();
        for (int row = oldCount - 1; row >= 0; --row) {
            if (position(rows, 0, std::invoke(key, m_rows[row]), key) < 0)
                remove(row);
        }
        for (int row = 0; row < rows.size(); ++row)
            place(row, rows[row]);
        // A key may occur less often than before.
        while (count() > rows.size())
            remove(count() - 1);
        if (count() != oldCount)
            Q_EMIT countChanged();
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != RowRole)
            return {};
        return QVariant::fromValue(m_rows[index.row()]);
    }

private:
    template <class Value, class Projection>
    static int position(const QList<Row>& rows, int begin, const Value& value,
                        Projection projection) {
        const auto found = std::ranges::find(rows.begin() + begin, rows.end(), value, projection);
        return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    }

    void remove(int row) {
        beginRemoveRows({}, row, row);
        m_rows.removeAt(row);
        endRemoveRows();
    }

    /// Puts it into the row, from wherever it is; the rows before are in their places.
    void place(int row, const Row& fresh) {
        const int from = position(m_rows, row, std::invoke(key, fresh), key);
        if (from < 0) {
            beginInsertRows({}, row, row);
            m_rows.insert(row, fresh);
            endInsertRows();
            return;
        }
        if (from != row) {
            beginMoveRows({}, from, from, {}, row);
            m_rows.move(from, row);
            endMoveRows();
        }
        if (m_rows[row] != fresh) {
            m_rows[row] = fresh;
            Q_EMIT dataChanged(index(row), index(row));
        }
    }

    QList<Row> m_rows;
};

} // namespace kestrowind
