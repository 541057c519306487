#pragma once

#include "UI/Presets/ThumbnailCurve.h"

#include <QColor>
#include <QQuickPaintedItem>

namespace kestrowind {

/// A fan curve in small: a line over a faint area. Repainted only when something of it changes.
class MiniCurveThumbnail : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(kestrowind::ThumbnailCurve curve READ curve WRITE setCurve NOTIFY curveChanged FINAL)
    Q_PROPERTY(QColor lineColor READ lineColor WRITE setLineColor NOTIFY lineColorChanged FINAL)
    Q_PROPERTY(QColor areaColor READ areaColor WRITE setAreaColor NOTIFY areaColorChanged FINAL)
    QML_ELEMENT

public:
    explicit MiniCurveThumbnail(QQuickItem* parent = nullptr);

    [[nodiscard]] const ThumbnailCurve& curve() const { return m_curve; }
    void setCurve(const ThumbnailCurve& curve);
    [[nodiscard]] QColor lineColor() const { return m_lineColor; }
    void setLineColor(const QColor& color);
    [[nodiscard]] QColor areaColor() const { return m_areaColor; }
    void setAreaColor(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void curveChanged();
    void lineColorChanged();
    void areaColorChanged();

private:
    ThumbnailCurve m_curve;
    QColor m_lineColor = Qt::black;
    QColor m_areaColor = Qt::transparent;
};

} // namespace kestrowind
