#pragma once

#include "Platform/SystemAppearance.h"
#include "UI/Dashboard/LineChart.h"

#include <QColor>
#include <QRectF>

class QPainter;
class QPen;

/// The picture of a chart as pure functions.
namespace kestrowind::LineChartPainter {

struct Look {
    QSizeF size = {};
    ColorScheme scheme = ColorScheme::light;

    /// Where the lines are: labels stand left of it and below.
    [[nodiscard]] QRectF plot() const;
    [[nodiscard]] QPointF position(const QPointF& point, const LineChart& chart) const;
};

[[nodiscard]] QColor color(LineChart::Ink ink, ColorScheme scheme);
/// 2 points wide with round ends; dashed is 5 points on, 4 off.
[[nodiscard]] QPen pen(LineChart::Ink ink, bool isDashed, ColorScheme scheme);

void paint(QPainter& painter, const LineChart& chart, const Look& look);

} // namespace kestrowind::LineChartPainter
