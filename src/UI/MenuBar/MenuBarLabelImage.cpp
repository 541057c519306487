#include "UI/MenuBar/MenuBarLabelImage.h"

#include "Core/WholeNumberText.h"
#include "UI/DesignSystem/Typography.h"
#include "UI/MenuBar/MenuBarReading.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace kestrowind::MenuBarLabelImage {
namespace {

using namespace Qt::StringLiterals;

constexpr int labelFontSize = 10;

QFont labelFont() {
    QFont font(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(labelFontSize);
    font.setWeight(QFont::Medium);
    return font;
}

/// The largest font whose digits are no higher than `height` and whose text is no wider than
/// `width`, both in pixels.
QFont fittedFont(const QString& text, double width, double height) {
    // Large enough that hinting does not blur the proportions.
    constexpr int measuredSize = 100;
    QFont measured = Typography::font(measuredSize, QFont::DemiBold);
    measured.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    const QFontMetricsF metrics(measured);
    const double fitting = std::min(height / metrics.capHeight(),
                                    width / std::max(1.0, metrics.horizontalAdvance(text)));
    return Typography::font(std::max(5, static_cast<int>(fitting * measuredSize)), QFont::DemiBold);
}

/// `text` centred on `width`, standing on `baseline`.
QPainterPath centredLine(const QString& text, const QFont& font, double width, double baseline) {
    const QFontMetricsF metrics(font);
    QPainterPath path;
    path.addText(std::round((width - metrics.horizontalAdvance(text)) / 2), baseline, font, text);
    return path;
}

} // namespace

QImage label(const MenuBarReading& reading, double scale) {
    const QString temperatureText = reading.temperatureText();
    const QString fanText = reading.fanText();
    const QFont font = labelFont();
    const QFontMetricsF metrics(font);
    const double lineHeight = std::ceil(metrics.height());
    const double width = std::ceil(
        std::max(metrics.horizontalAdvance(temperatureText), metrics.horizontalAdvance(fanText)));
    QImage image((QSizeF(width, 2 * lineHeight) * scale).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRectF(0, 0, width, lineHeight), Qt::AlignCenter, temperatureText);
    painter.drawText(QRectF(0, lineHeight, width, lineHeight), Qt::AlignCenter, fanText);
    return image;
}

QImage square(const MenuBarReading& reading, int side, const QColor& ink) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);

    // The temperature has few digits and may stand taller than the speed.
    const QString temperature = reading.temperature == WholeNumberText::unknown()
                                    ? reading.temperature
                                    : reading.temperature + u"°"_s;
    const QFont above = fittedFont(temperature, side, std::round(side * 0.40));
    const QFont below = fittedFont(reading.fanSpeed, side, std::round(side * 0.34));
    const double gap = std::max(2.0, std::round(side * 0.1));
    const double aboveHeight = std::round(QFontMetricsF(above).capHeight());
    const double belowHeight = std::round(QFontMetricsF(below).capHeight());
    const double top = std::floor((side - aboveHeight - gap - belowHeight) / 2);

    QPainterPath lines = centredLine(temperature, above, side, top + aboveHeight);
    lines.addPath(
        centredLine(reading.fanSpeed, below, side, top + aboveHeight + gap + belowHeight));
    QColor edge = ink.lightnessF() > 0.5f ? Qt::black : Qt::white;
    edge.setAlphaF(0.6f);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(
        lines, QPen(edge, std::max(1.5, side / 14.0), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(lines, ink);
    return image;
}

} // namespace kestrowind::MenuBarLabelImage
