#pragma once

#include "Core/AssignIfChanged.h"

#include <QAbstractListModel>
#include <QList>

#include <algorithm>

namespace kestrowind {

/// A list of values under the one role "row". New rows replace old ones in place, so that what
/// shows a row lives on and only hears of real changes.
template <class Row>
class RowListModel final : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const QList<Row>& rows() const { return m_rows; }

    void setRows(const QList<Row>& rows) {
        const qsizetype common = std::min(m_rows.size(), rows.size());
        if (rows.size() < m_rows.size()) {
            beginRemoveRows({}, static_cast<int>(common), static_cast<int>(m_rows.size()) - 1);
            m_rows.resize(common);
            endRemoveRows();
        }
        for (qsizetype i = 0; i < common; ++i) {
            if (assignIfChanged(m_rows[i], rows[i])) {
                const QModelIndex changed = index(static_cast<int>(i));
                Q_EMIT dataChanged(changed, changed);
            }
        }
        if (rows.size() > common) {
            beginInsertRows({}, static_cast<int>(common), static_cast<int>(rows.size()) - 1);
            m_rows.append(rows.mid(common));
            endInsertRows();
        }
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != Qt::UserRole)
            return {};
        return QVariant::fromValue(m_rows[index.row()]);
    }
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override {
        return {{Qt::UserRole, "row"}};
    }

private:
    QList<Row> m_rows;
};

} // namespace kestrowind
