#include "UI/DesignSystem/TabularText.h"

#include "UI/DesignSystem/TabularLine.h"
#include "UI/DesignSystem/Typography.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace kestrowind {

TabularText::TabularText(QQuickItem* parent)
    : PaintedItem(parent)
    , m_font(Typography::body()) {
    connect(this, &PaintedItem::lookChanged, this, &TabularText::measure);
    measure();
}

void TabularText::measure() {
    const QFontMetricsF metrics(m_font);
    setImplicitSize(std::ceil(TabularLine(m_text, m_font).width()),
                    std::ceil(metrics.ascent() + metrics.descent()));
    setBaselineOffset(metrics.ascent());
}

void TabularText::paint(QPainter& painter) {
    painter.setPen(m_color.isValid() ? m_color : colors().primaryText);
    TabularLine(m_text, m_font).draw(painter, {0, baselineOffset()});
}

} // namespace kestrowind
