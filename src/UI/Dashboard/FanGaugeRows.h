#pragma once

#include "UI/Dashboard/FanGaugeFacts.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kestrowind {

/// The fans of the newest sample. A fan keeps its row, and so its gauge, from sample to sample.
class FanGaugeRows : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(bool hasSeveral READ hasSeveral NOTIFY hasSeveralChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("belongs to DashboardModel")

public:
    enum Role {
        NameRole = Qt::UserRole,
        ReadoutRole,
        CaptionRole,
        SpokenRole,
        FractionRole,
        RevolutionsPerSecondRole,
        IsParkedRole,
        IsDashedRole,
    };

    using QAbstractListModel::QAbstractListModel;

    void setFans(const std::vector<SMCFanReading>& fans);

    /// Fans side by side seldom turn alike, which wants a word and names.
    [[nodiscard]] bool hasSeveral() const { return m_rows.size() > 1; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void hasSeveralChanged();

private:
    QList<FanGaugeFacts> m_rows;
};

} // namespace kestrowind
