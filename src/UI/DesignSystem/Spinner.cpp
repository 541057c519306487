#include "UI/DesignSystem/Spinner.h"

#include <QPainter>

#include <algorithm>

namespace kestrowind {

Spinner::Spinner(QQuickItem* parent)
    : PaintedItem(parent)
    , m_visibility(*this) {
    const auto takeSize = [this] { setImplicitSize(m_diameter, m_diameter); };
    connect(this, &Spinner::lookChanged, this, takeSize);
    takeSize();
    m_steps.setInterval(stepInterval);
    connect(&m_steps, &QTimer::timeout, this, &Spinner::step);
    connect(&m_visibility, &VisibilityWatch::isSeenChanged, this, &Spinner::takeVisibility);
    takeVisibility();
}

void Spinner::takeVisibility() {
    if (m_visibility.isSeen())
        m_steps.start();
    else
        m_steps.stop();
}

void Spinner::step() {
    m_lit = (m_lit + 1) % spokeCount;
    repaint();
}

void Spinner::paint(QPainter& painter) {
    constexpr double faintest = 0.2;
    const double outer = std::min(width(), height()) / 2;
    QPen pen(m_color, outer / 4, Qt::SolidLine, Qt::RoundCap);
    painter.translate(boundingRect().center());
    for (int spoke = 0; spoke < spokeCount; ++spoke) {
        // The tail behind the brightest fades.
        const int behind = (m_lit - spoke + spokeCount) % spokeCount;
        QColor color = m_color;
        color.setAlphaF(static_cast<float>(
            m_color.alphaF() * std::max(faintest, 1 - static_cast<double>(behind) / spokeCount)));
        pen.setColor(color);
        painter.setPen(pen);
        painter.save();
        painter.rotate(360.0 * spoke / spokeCount);
        painter.drawLine(QPointF(0, -outer * 0.5), QPointF(0, -outer * 0.86));
        painter.restore();
    }
}

} // namespace kestrowind
