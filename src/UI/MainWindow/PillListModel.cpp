#include "UI/MainWindow/PillListModel.h"

#include <algorithm>

namespace kestrowind {
namespace {

/// The first row, from a given one on, with the slot; -1 when there is none.
int rowOf(const QList<PresetPill>& pills, const PresetSlot& slot, int begin = 0) {
    const auto found =
        std::ranges::find(pills.begin() + begin, pills.end(), slot, &PresetPill::slot);
    return found == pills.end() ? -1 : static_cast<int>(found - pills.begin());
}

} // namespace

void PillListModel::setPills(const QList<PresetPill>& pills) {
    const int oldCount = count();
    removeAllBut(pills);
    for (int row = 0; row < pills.size(); ++row)
        place(row, pills.at(row));
    // A slot may occur more than once, and now less often than before.
    for (int row = count() - 1; row >= pills.size(); --row)
        remove(row);
    if (count() != oldCount)
        Q_EMIT countChanged();
}

void PillListModel::removeAllBut(const QList<PresetPill>& pills) {
    for (int row = count() - 1; row >= 0; --row) {
        if (rowOf(pills, m_pills.at(row).slot) >= 0)
            continue;
        remove(row);
    }
}

void PillListModel::remove(int row) {
    beginRemoveRows({}, row, row);
    m_pills.removeAt(row);
    endRemoveRows();
}

void PillListModel::place(int row, const PresetPill& pill) {
    // What lies before is in its place already.
    const int from = rowOf(m_pills, pill.slot, row);
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
