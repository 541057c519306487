#pragma once

#include "UI/CurveEditor/CurvePlotGeometry.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// The points of the plot by their order. What shows a point stays with it when another is added,
/// moved or removed.
class CurvePointRows : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of FanCurveChartModel")

public:
    enum Role { XRole = Qt::UserRole, YRole, PercentRole, SpokenLabelRole, SpokenValueRole };

    using QAbstractListModel::QAbstractListModel;

    /// New points, or the same ones in a plot of another size.
    void setGeometry(const CurvePlotGeometry& geometry);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    CurvePlotGeometry m_geometry;
};

} // namespace kestrowind
