#pragma once

#include "UI/CurveEditor/FanCurveChartModel.h"

#include <QRegularExpression>
#include <QStringList>

#include <functional>
#include <utility>

namespace kestrowind {

/// Does what the chart asks for, as a screen would, and writes down what it was.
class CurveOwner : public QObject {
public:
    explicit CurveOwner(const FanCurve& curve) {
        chart.setIsEditable(true);
        chart.setCurve(curve);
        connect(&chart, &FanCurveChartModel::movePoint, this,
                [this](int index, const FanCurvePoint& to, bool isFinal) {
                    if (!isFinal && !stored)
                        stored = chart.curve();
                    if (isFinal)
                        stored.reset();
                    edit(QStringLiteral("%1 %2: %3 %4")
                             .arg(isFinal ? QStringLiteral("move") : QStringLiteral("step"))
                             .arg(index)
                             .arg(to.tempC)
                             .arg(to.percent),
                         [&](FanCurve& edited) { edited.move(index, to); });
                });
        connect(&chart, &FanCurveChartModel::nudgePoint, this,
                [this](int index, const FanCurvePoint& to) {
                    edit(QStringLiteral("nudge %1: %2 %3").arg(index).arg(to.tempC).arg(to.percent),
                         [&](FanCurve& edited) { edited.move(index, to); });
                });
        connect(&chart, &FanCurveChartModel::addPoint, this, [this](const FanCurvePoint& point) {
            edit(QStringLiteral("add: %1 %2").arg(point.tempC).arg(point.percent),
                 [&](FanCurve& edited) { edited.insert(point); });
        });
        connect(&chart, &FanCurveChartModel::deletePointRequested, this, [this](int index) {
            edit(QStringLiteral("delete %1").arg(index), [&](FanCurve& edited) {
                if (edited.points().size() > 1)
                    edited.remove(index);
            });
        });
        connect(&chart, &FanCurveChartModel::dragCancelled, this, [this] {
            edit(QStringLiteral("cancel"), [&](FanCurve& edited) {
                edited = std::exchange(stored, std::nullopt).value_or(edited);
            });
        });
    }

    /// What was asked for since the last time, the steps of a drag left out.
    QStringList takeEdits() {
        return std::exchange(said, {}).filter(QRegularExpression(QStringLiteral("^(?!step)")));
    }

    FanCurveChartModel chart;
    QStringList said;
    std::optional<FanCurve> stored; ///< before the drag

private:
    void edit(const QString& what, const std::function<void(FanCurve&)>& change) {
        said.append(what);
        FanCurve curve = chart.curve();
        change(curve);
        chart.setCurve(curve);
    }
};

} // namespace kestrowind
