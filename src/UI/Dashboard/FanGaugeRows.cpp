#include "UI/Dashboard/FanGaugeRows.h"

#include "Core/AssignIfChanged.h"

#include <algorithm>

namespace kestrowind {

void FanGaugeRows::setFans(const std::vector<SMCFanReading>& fans) {
    QList<FanGaugeFacts> rows;
    const auto count = static_cast<qsizetype>(fans.size());
    for (const SMCFanReading& fan : fans)
        rows.append(FanGaugeFacts::of(fan, rows.size(), count));

    const bool hadSeveral = hasSeveral();
    const auto firstOther =
        std::mismatch(m_rows.cbegin(), m_rows.cend(), rows.cbegin(), rows.cend(),
                      [](const FanGaugeFacts& old, const FanGaugeFacts& fresh) {
                          return old.index == fresh.index;
                      })
            .first;
    const auto keptCount = static_cast<int>(firstOther - m_rows.cbegin());
    if (keptCount < m_rows.size()) {
        beginRemoveRows({}, keptCount, static_cast<int>(m_rows.size()) - 1);
        m_rows.remove(keptCount, m_rows.size() - keptCount);
        endRemoveRows();
    }
    for (int row = 0; row < keptCount; ++row) {
        if (assignIfChanged(m_rows[row], rows[row]))
            Q_EMIT dataChanged(index(row), index(row));
    }
    if (keptCount < rows.size()) {
        beginInsertRows({}, keptCount, static_cast<int>(rows.size()) - 1);
        m_rows.append(rows.sliced(keptCount));
        endInsertRows();
    }
    if (hadSeveral != hasSeveral())
        Q_EMIT hasSeveralChanged();
}

int FanGaugeRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FanGaugeRows::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FanGaugeFacts& facts = m_rows[index.row()];
    switch (role) {
    case NameRole:
        return facts.name;
    case ReadoutRole:
        return facts.readout;
    case CaptionRole:
        return facts.caption;
    case SpokenRole:
        return facts.spoken;
    case FractionRole:
        return facts.fraction;
    case RevolutionsPerSecondRole:
        return facts.revolutionsPerSecond;
    case IsParkedRole:
        return facts.isParked;
    case IsDashedRole:
        return facts.isDashed;
    default:
        return {};
    }
}

QHash<int, QByteArray> FanGaugeRows::roleNames() const {
    return {
        {NameRole, "name"},         {ReadoutRole, "readout"},
        {CaptionRole, "caption"},   {SpokenRole, "spoken"},
        {FractionRole, "fraction"}, {RevolutionsPerSecondRole, "revolutionsPerSecond"},
        {IsParkedRole, "isParked"}, {IsDashedRole, "isDashed"},
    };
}

} // namespace kestrowind
