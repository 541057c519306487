#include "UI/CurveEditor/CurvePointRows.h"

#include "Core/LocalizedText.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {

void CurvePointRows::setGeometry(const CurvePlotGeometry& geometry) {
    const QList<FanCurvePoint>& old = m_geometry.points;
    const QList<FanCurvePoint>& now = geometry.points;
    const auto oldCount = static_cast<int>(old.size());
    const auto newCount = static_cast<int>(now.size());
    const int common = std::min(oldCount, newCount);
    // The points before the first one that differs stay what they are; as many as have a
    // counterpart change; the rest come or go after these.
    const int same = static_cast<int>(
        std::mismatch(old.begin(), old.begin() + common, now.begin()).first - old.begin());
    int sameAtEnd = 0;
    while (sameAtEnd < common - same &&
           old[oldCount - 1 - sameAtEnd] == now[newCount - 1 - sameAtEnd])
        ++sameAtEnd;
    const int firstExtra = common - sameAtEnd;

    if (newCount < oldCount) {
        beginRemoveRows({}, firstExtra, firstExtra + oldCount - newCount - 1);
        m_geometry = geometry;
        endRemoveRows();
    } else if (newCount > oldCount) {
        beginInsertRows({}, firstExtra, firstExtra + newCount - oldCount - 1);
        m_geometry = geometry;
        endInsertRows();
    } else {
        m_geometry = geometry;
    }
    if (newCount > 0)
        Q_EMIT dataChanged(index(0), index(newCount - 1));
}

int CurvePointRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_geometry.points.size());
}

QVariant CurvePointRows::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FanCurvePoint& point = m_geometry.points[index.row()];
    switch (role) {
    case XRole:
        return m_geometry.position(point).x();
    case YRole:
        return m_geometry.position(point).y();
    case PercentRole:
        return point.percent;
    case SpokenLabelRole:
        return localized("curves.chart.pointAccessibilityLabel").arg(index.row() + 1);
    case SpokenValueRole:
        return localized("curves.chart.pointAccessibilityValue")
            .arg(std::lround(point.tempC))
            .arg(std::lround(point.percent));
    default:
        return {};
    }
}

QHash<int, QByteArray> CurvePointRows::roleNames() const {
    return {{XRole, QByteArrayLiteral("plotX")},
            {YRole, QByteArrayLiteral("plotY")},
            {PercentRole, QByteArrayLiteral("percent")},
            {SpokenLabelRole, QByteArrayLiteral("spokenLabel")},
            {SpokenValueRole, QByteArrayLiteral("spokenValue")}};
}

} // namespace kestrowind
