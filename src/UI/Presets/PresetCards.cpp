#include "UI/Presets/PresetCards.h"

#include <algorithm>

namespace kestrowind {

void PresetCards::setCards(const QList<PresetCard>& cards) {
    for (int row = rowCount() - 1; row >= 0; --row) {
        const PresetSlot& slot = m_cards.at(row).slot;
        if (std::ranges::find(cards, slot, &PresetCard::slot) == cards.end())
            removeRow(row);
    }
    for (int row = 0; row < cards.size(); ++row)
        place(row, cards.at(row));
    while (rowCount() > cards.size())
        removeRow(rowCount() - 1);
}

void PresetCards::removeRow(int row) {
    beginRemoveRows({}, row, row);
    m_cards.removeAt(row);
    endRemoveRows();
}

void PresetCards::place(int row, const PresetCard& card) {
    // What lies before is in its place already.
    const auto found =
        std::ranges::find(m_cards.begin() + row, m_cards.end(), card.slot, &PresetCard::slot);
    if (found == m_cards.end()) {
        beginInsertRows({}, row, row);
        m_cards.insert(row, card);
        endInsertRows();
        return;
    }
    const int from = static_cast<int>(found - m_cards.begin());
    if (from != row) {
        beginMoveRows({}, from, from, {}, row);
        m_cards.move(from, row);
        endMoveRows();
    }
    if (m_cards.at(row) != card) {
        m_cards[row] = card;
        Q_EMIT dataChanged(index(row), index(row));
    }
}

int PresetCards::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_cards.size());
}

QVariant PresetCards::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const PresetCard& card = m_cards.at(index.row());
    switch (role) {
    case SlotIDRole:
        return card.slot.id();
    case Qt::DisplayRole:
    case NameRole:
        return card.name;
    case CaptionRole:
        return card.caption;
    case SymbolNameRole:
        return card.symbolName;
    case HelpRole:
        return card.help;
    case CurveRole:
        return QVariant::fromValue(card.curve);
    case IsAutomaticRole:
        return card.slot.isAutomatic();
    case IsActiveRole:
        return card.isActive;
    case IsEditableRole:
        return card.isEditable;
    default:
        return {};
    }
}

QHash<int, QByteArray> PresetCards::roleNames() const {
    return {{SlotIDRole, "slotID"},
            {NameRole, "name"},
            {CaptionRole, "caption"},
            {SymbolNameRole, "symbolName"},
            {HelpRole, "help"},
            {CurveRole, "curve"},
            {IsAutomaticRole, "isAutomatic"},
            {IsActiveRole, "isActive"},
            {IsEditableRole, "isEditable"}};
}

} // namespace kestrowind
