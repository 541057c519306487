#pragma once

#include <QFont>
#include <QPointF>
#include <QString>

class QPainter;

namespace kestrowind {

/// A line of text in which every digit is equally wide, so that a number stands still while it
/// changes and numbers above each other line up. In points of the layout.
class TabularLine {
public:
    TabularLine(QString text, const QFont& font);

    [[nodiscard]] double width() const;
    /// With the painter's pen; start is on the base line.
    void draw(QPainter& painter, QPointF start) const;

private:
    QString m_text;
    QFont m_font;
    double m_digitWidth;
};

} // namespace kestrowind
