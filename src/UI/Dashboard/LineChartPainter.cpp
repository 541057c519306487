#include "UI/Dashboard/LineChartPainter.h"

#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/TabularLine.h"
#include "UI/DesignSystem/Typography.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kestrowind::LineChartPainter {
namespace {

constexpr double lineWidth = 2;
constexpr double labelColumn = 46; ///< on the left; "100 °C" has room in it
constexpr double labelRow = 20;    ///< below
constexpr double topMargin = 7;    ///< half a label of a tick at the top
constexpr double rightMargin = 2;
constexpr double labelGap = 8;
constexpr double areaOpacity = 0.22;
constexpr double foregroundOpacity = 0.7;

/// In the middle of a device pixel, so that a one-point line is sharp.
double sharp(double coordinate) {
    return std::floor(coordinate) + 0.5;
}

void paintAxes(QPainter& painter, const LineChart& chart, const Look& look) {
    const QFont font = Typography::caption2();
    const QFontMetricsF metrics(font);
    const QRectF plot = look.plot();
    const double base = std::round((metrics.ascent() - metrics.descent()) / 2);
    const QPen grid(Palette::colors(look.scheme).separator, 1);
    const QPen text(Palette::colors(look.scheme).tertiaryText);

    for (const LineChart::Tick& tick : chart.valueTicks) {
        const double y = look.position({0, tick.position}, chart).y();
        painter.setPen(grid);
        painter.drawLine(QPointF(plot.left(), sharp(y)), QPointF(plot.right(), sharp(y)));
        painter.setPen(text);
        const TabularLine label(tick.label, font);
        label.draw(painter,
                   {std::round(plot.left() - labelGap - label.width()), std::floor(y) + base});
    }
    for (const LineChart::Tick& tick : chart.timeTicks) {
        const double x = look.position({tick.position, 0}, chart).x();
        painter.setPen(grid);
        painter.drawLine(QPointF(sharp(x), plot.top()), QPointF(sharp(x), plot.bottom()));
        painter.setPen(text);
        // Centred below its line, but never cut off.
        const TabularLine label(tick.label, font);
        const double width = label.width();
        const double left =
            std::clamp(x - width / 2, 0.0, std::max(look.size.width() - width, 0.0));
        label.draw(painter, {std::round(left), look.size.height() - 4});
    }
}

QPolygonF placed(const LineChart::Series& series, const LineChart& chart, const Look& look) {
    QPolygonF line;
    line.reserve(series.points.size());
    for (const QPointF& point : series.points) {
        if (std::isfinite(point.y()))
            line.append(look.position(point, chart));
    }
    return line;
}

void paintArea(QPainter& painter, const QPolygonF& line, const QRectF& plot, const QColor& color) {
    QPolygonF area = line;
    area << QPointF(line.last().x(), plot.bottom()) << QPointF(line.first().x(), plot.bottom());
    QLinearGradient fade(0, area.boundingRect().top(), 0, plot.bottom());
    fade.setColorAt(0, Palette::faded(color, areaOpacity));
    fade.setColorAt(1, Palette::faded(color, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fade);
    painter.drawPolygon(area);
}

} // namespace

QRectF Look::plot() const {
    return {labelColumn, topMargin, std::max(size.width() - labelColumn - rightMargin, 0.0),
            std::max(size.height() - topMargin - labelRow, 0.0)};
}

QPointF Look::position(const QPointF& point, const LineChart& chart) const {
    const QRectF area = plot();
    return {area.left() + area.width() * (point.x() - chart.time.lower) / chart.time.length(),
            area.bottom() -
                area.height() * (point.y() - chart.values.lower) / chart.values.length()};
}

QColor color(LineChart::Ink ink, ColorScheme scheme) {
    switch (ink) {
    case LineChart::Ink::cpu:
        return Palette::cpuSeries();
    case LineChart::Ink::gpu:
        return Palette::gpuSeries();
    case LineChart::Ink::foreground:
        return Palette::faded(Palette::colors(scheme).primaryText, foregroundOpacity);
    }
    Q_UNREACHABLE();
}

QPen pen(LineChart::Ink ink, bool isDashed, ColorScheme scheme) {
    QPen pen(color(ink, scheme), lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (isDashed)
        pen.setDashPattern({5 / lineWidth, 4 / lineWidth});
    return pen;
}

void paint(QPainter& painter, const LineChart& chart, const Look& look) {
    const QRectF plot = look.plot();
    if (plot.isEmpty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    paintAxes(painter, chart, look);

    // A clock that was set back must not draw over the labels; half a line may stand out.
    painter.setClipRect(plot.adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth));
    QList<QPolygonF> lines;
    for (const LineChart::Series& series : chart.series) {
        lines.append(placed(series, chart, look));
        if (series.isFilled && lines.last().size() > 1)
            paintArea(painter, lines.last(), plot, color(series.ink, look.scheme));
    }
    painter.setBrush(Qt::NoBrush);
    for (qsizetype index = 0; index < lines.size(); ++index) {
        const LineChart::Series& series = chart.series[index];
        painter.setPen(pen(series.ink, series.isDashed, look.scheme));
        painter.drawPolyline(lines[index]);
    }
}

} // namespace kestrowind::LineChartPainter
