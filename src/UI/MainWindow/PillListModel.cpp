#include "UI/MainWindow/PillListModel.h"

#include <algorithm>

namespace kestrowind {
namespace {

/// -1 when no pill has the slot.
int rowOf(const QList<PresetPill>& pills, const PresetSlot& slot) {
    const auto found = std::ranges::find(pills, slot, &PresetPill::slot);
    return found == pills.end() ? -1 : static_cast<int>(found - pills.begin());
}

} // namespace

void PillListModel::setPills(const QList<PresetPill>& pills) {
    const int oldCount = count();
    removeAllBut(pills);
    for (int row = 0; row < pills.size(); ++row)
        place(row, pills.at(row));
    if (count() != oldCount)
        Q_EMIT countChanged();
}

void PillListModel::removeAllBut(const QList<PresetPill>& pills) {
    for (int row = count() - 1; row >= 0; --row) {
        if (rowOf(pills, m_pills.at(row).slot) >= 0)
            continue;
        beginRemoveRows({}, row, row);
        m_pills.removeAt(row);
        endRemoveRows();
    }
}

void PillListModel::place(int row, const PresetPill& pill) {
    const int from = rowOf(m_pills, pill.slot);
    if (from < 0) {
        beginInsertRows({}, row, row);
        m_pills.insert(row, pill);
        endInsertRows();
        return;
    }
    if (from != row) {
        beginMoveRows({}, from, from, {}, row);
        m_pills.move(from, row);
        endMoveRows();
    }
    if (m_pills.at(row) != pill) {
        m_pills[row] = pill;
        Q_EMIT dataChanged(index(row), index(row));
    }
}

int PillListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant PillListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const PresetPill& pill = m_pills.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return pill.title;
    case FullNameRole:
        return pill.fullName;
    case SymbolNameRole:
        return pill.symbolName;
    case IsActiveRole:
        return pill.isActive;
    case WidthRole:
        return pill.width;
    default:
        return {};
    }
}

QHash<int, QByteArray> PillListModel::roleNames() const {
    return {{TitleRole, QByteArrayLiteral("title")},
            {FullNameRole, QByteArrayLiteral("fullName")},
            {SymbolNameRole, QByteArrayLiteral("symbolName")},
            {IsActiveRole, QByteArrayLiteral("isActive")},
            {WidthRole, QByteArrayLiteral("pillWidth")}};
}

} // namespace kestrowind
