#pragma once

#include <QQuickPaintedItem>

namespace kestrowind {

/// A straight piece of a fan's line for the legend, through the middle of its height.
class LineSample : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(bool isDashed READ isDashed WRITE setDashed NOTIFY isDashedChanged FINAL)
    QML_ELEMENT

public:
    explicit LineSample(QQuickItem* parent = nullptr);

    [[nodiscard]] bool isDashed() const { return m_isDashed; }
    void setDashed(bool isDashed);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void isDashedChanged();

protected:
    void componentComplete() override;

private:
    bool m_isDashed = false;
};

} // namespace kestrowind
