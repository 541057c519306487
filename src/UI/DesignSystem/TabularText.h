#pragma once

#include "UI/DesignSystem/PaintedItem.h"

#include <QColor>
#include <QFont>

namespace kestrowind {

/// A label whose number stands still while it changes (see TabularLine). One picture in place of an
/// item a digit: every item costs the window something in each of its frames.
class TabularText : public kestrowind::PaintedItem {
    Q_OBJECT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY lookChanged FINAL)
    /// Body by default.
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY lookChanged FINAL)
    /// The primary text's by default.
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY lookChanged FINAL)
    QML_ELEMENT

public:
    explicit TabularText(QQuickItem* parent = nullptr);

protected:
    void paint(QPainter& painter) override;

private:
    void measure();

    QString m_text;
    QFont m_font;
    QColor m_color; ///< invalid: the default
};

} // namespace kestrowind
