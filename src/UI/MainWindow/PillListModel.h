#pragma once

#include "UI/MainWindow/PresetPill.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// Pills in their order. A new list is told as the moves, insertions and removals that lead to it,
/// so that what shows a pill stays with it.
class PillListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("part of PresetPillsModel")

public:
    enum Role { TitleRole = Qt::UserRole, FullNameRole, SymbolNameRole, IsActiveRole, WidthRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const QList<PresetPill>& pills() const { return m_pills; }
    void setPills(const QList<PresetPill>& pills);
    [[nodiscard]] int count() const { return static_cast<int>(m_pills.size()); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    void removeAllBut(const QList<PresetPill>& pills);
    /// Puts the pill into the row, from wherever it is.
    void remove(int row);
    void place(int row, const PresetPill& pill);

    QList<PresetPill> m_pills;
};

} // namespace kestrowind
