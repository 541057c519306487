#pragma once

#include "UI/CurveEditor/FanCurveChartModel.h"

#include <QStringList>

namespace kestrowind {

/// Does what the chart asks for, as a screen would, and writes down what it was.
class CurveOwner : public QObject {
public:
    explicit CurveOwner(const FanCurve& curve) {
        chart.setIsEditable(true);
        chart.setCurve(curve);
        connect(&chart, &FanCurveChartModel::movePoint, this,
                [this](int index, double temperature, double percent, bool isFinal) {
                    say(QStringLiteral("%1 %2").arg(isFinal ? QStringLiteral("move")
                                                            : QStringLiteral("step"),
                                                    QString::number(index)),
                        temperature, percent);
                    FanCurve moved = chart.curve();
                    if (!stored)
                        stored = moved;
                    moved.move(index, {temperature, percent});
                    if (isFinal)
                        stored.reset();
                    chart.setCurve(moved);
                });
        connect(&chart, &FanCurveChartModel::nudgePoint, this,
                [this](int index, double temperature, double percent) {
                    say(QStringLiteral("nudge %1").arg(index), temperature, percent);
                    FanCurve moved = chart.curve();
                    moved.move(index, {temperature, percent});
                    chart.setCurve(moved);
                });
        connect(&chart, &FanCurveChartModel::addPoint, this,
                [this](double temperature, double percent) {
                    say(QStringLiteral("add"), temperature, percent);
                    FanCurve grown = chart.curve();
                    grown.insert({temperature, percent});
                    chart.setCurve(grown);
                });
        connect(&chart, &FanCurveChartModel::deletePointRequested, this, [this](int index) {
            said.append(QStringLiteral("delete %1").arg(index));
            FanCurve shrunk = chart.curve();
            if (shrunk.points().size() > 1)
                shrunk.remove(index);
            chart.setCurve(shrunk);
        });
        connect(&chart, &FanCurveChartModel::dragCancelled, this, [this] {
            said.append(QStringLiteral("cancel"));
            if (stored)
                chart.setCurve(*std::exchange(stored, std::nullopt));
        });
    }

    /// What was asked for since the last time, the steps of a drag left out.
    QStringList takeEdits() {
        QStringList edits;
        for (const QString& line : std::exchange(said, {})) {
            if (!line.startsWith(QLatin1StringView("step")))
                edits.append(line);
        }
        return edits;
    }

    FanCurveChartModel chart;
    QStringList said;
    std::optional<FanCurve> stored;

private:
    void say(const QString& what, double temperature, double percent) {
        said.append(QStringLiteral("%1: %2 %3").arg(what).arg(temperature).arg(percent));
    }
};

} // namespace kestrowind
