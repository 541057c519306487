#include "UI/DesignSystem/TabularLine.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace kestrowind {
namespace {

double widestDigit(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

} // namespace

TabularLine::TabularLine(QString text, const QFont& font)
    : m_text(std::move(text))
    , m_font(font)
    , m_digitWidth(widestDigit(QFontMetricsF(m_font))) {}

double TabularLine::width() const {
    const QFontMetricsF metrics(m_font);
    double width = 0;
    for (const QChar character : m_text)
        width += character.isDigit() ? m_digitWidth : metrics.horizontalAdvance(character);
    return width;
}

void TabularLine::draw(QPainter& painter, QPointF start) const {
    const QFontMetricsF metrics(m_font);
    painter.setFont(m_font);
    for (const QChar character : m_text) {
        const double advance = metrics.horizontalAdvance(character);
        const double width = character.isDigit() ? m_digitWidth : advance;
        painter.drawText(start + QPointF((width - advance) / 2, 0), QString(character));
        start.rx() += width;
    }
}

} // namespace kestrowind
