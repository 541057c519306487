#pragma once

#include "UI/CurveEditor/CurvePlotGeometry.h"
#include "UI/DesignSystem/RowListModel.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// A point of the plot as its handle shows it.
struct CurvePointRow {
    Q_GADGET
    Q_PROPERTY(double x MEMBER x CONSTANT FINAL)
    Q_PROPERTY(double y MEMBER y CONSTANT FINAL)
    Q_PROPERTY(double percent MEMBER percent CONSTANT FINAL)
    Q_PROPERTY(QString spokenLabel MEMBER spokenLabel CONSTANT FINAL)
    Q_PROPERTY(QString spokenValue MEMBER spokenValue CONSTANT FINAL)
    QML_VALUE_TYPE(curvePointRow)

public:
    int identity = 0; ///< see CurvePointIdentities
    double x = 0;
    double y = 0;
    double percent = 0;
    QString spokenLabel;
    QString spokenValue;

    bool operator==(const CurvePointRow&) const = default;
};

using CurvePointRows = RowListModel<CurvePointRow, &CurvePointRow::identity>;

/// Tells the points of a curve apart while it changes: a number for each, by their order.
class CurvePointIdentities {
public:
    /// The points before the first one that differs, and those behind the last one, stay who they
    /// are. Of those between, as many as have a counterpart have only moved; the rest come or go
    /// after these.
    void follow(const QList<FanCurvePoint>& before, const QList<FanCurvePoint>& now);

    [[nodiscard]] QList<CurvePointRow> rows(const CurvePlotGeometry& geometry) const;

private:
    QList<int> m_identities;
    int m_next = 0;
};

} // namespace kestrowind
