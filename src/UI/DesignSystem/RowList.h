#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// What views know of a RowListModel: how many rows there are, and each as a value under the one
/// role "row".
class RowList : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("part of a view model")

public:
    static constexpr int RowRole = Qt::UserRole;

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int count() const { return rowCount(); }
    [[nodiscard]] QHash<int, QByteArray> roleNames() const final { return {{RowRole, "row"}}; }

Q_SIGNALS:
    /// Once all the rows are what they shall be.
    void countChanged();
};

} // namespace kestrowind
