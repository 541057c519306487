#include "UI/Curves/PresetChoices.h"

namespace kestrowind {

void PresetChoices::setChoices(const QList<Choice>& choices) {
    if (m_choices == choices)
        return;
    if (m_choices.size() == choices.size()) {
        m_choices = choices;
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    beginResetModel();
    m_choices = choices;
    endResetModel();
}

int PresetChoices::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_choices.size());
}

QVariant PresetChoices::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Choice& choice = m_choices[index.row()];
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return choice.name;
    case SymbolNameRole:
        return choice.symbolName;
    case IsSelectedRole:
        return choice.isSelected;
    default:
        return {};
    }
}

QHash<int, QByteArray> PresetChoices::roleNames() const {
    return {{NameRole, QByteArrayLiteral("name")},
            {SymbolNameRole, QByteArrayLiteral("symbolName")},
            {IsSelectedRole, QByteArrayLiteral("isSelected")}};
}

} // namespace kestrowind
