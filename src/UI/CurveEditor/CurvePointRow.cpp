#include "UI/CurveEditor/CurvePointRow.h"

#include "Core/LocalizedText.h"

#include <algorithm>
#include <cmath>

namespace kestrowind {

void CurvePointIdentities::follow(const QList<FanCurvePoint>& before,
                                  const QList<FanCurvePoint>& now) {
    const auto difference = std::ranges::mismatch(before, now);
    const qsizetype common = std::min(before.size(), now.size());
    const qsizetype sameAtBegin = difference.in1 - before.begin();
    const auto behind = std::mismatch(before.rbegin(), before.rend(), now.rbegin(), now.rend());
    const qsizetype sameAtEnd = std::min(behind.first - before.rbegin(), common - sameAtBegin);
    const qsizetype firstExtra = common - sameAtEnd;
    if (now.size() < before.size())
        m_identities.remove(firstExtra, before.size() - now.size());
    while (m_identities.size() < now.size())
        m_identities.insert(firstExtra, m_next++);
}

QList<CurvePointRow> CurvePointIdentities::rows(const CurvePlotGeometry& geometry) const {
    QList<CurvePointRow> rows;
    for (const FanCurvePoint& point : geometry.points) {
        const QPointF position = geometry.position(point);
        rows.append(
            {.identity = m_identities[rows.size()],
             .x = position.x(),
             .y = position.y(),
             .percent = point.percent,
             .spokenLabel = localized("curves.chart.pointAccessibilityLabel").arg(rows.size() + 1),
             .spokenValue = localized("curves.chart.pointAccessibilityValue")
                                .arg(std::lround(point.tempC))
                                .arg(std::lround(point.percent))});
    }
    return rows;
}

} // namespace kestrowind
