#pragma once

#include "Core/FanCurve.h"
#include "Shared/SMCKit/SMCFanReading.h"

#include <QObject>
#include <QPointF>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace kestrowind {

/// A text beside a place of the plot: the values of a point, or of one that a click would add.
struct CurveCallout {
    Q_GADGET
    Q_PROPERTY(bool isShown MEMBER isShown CONSTANT FINAL)
    Q_PROPERTY(QPointF position MEMBER position CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    QML_VALUE_TYPE(curveCallout)

public:
    bool isShown = false;
    QPointF position = {}; ///< in the plot, points
    QString text = {};

    bool operator==(const CurveCallout&) const = default;

    /// Whole degrees and percent, and with a fan what it would be asked for: an estimated speed, or
    /// its automatic one at 0 %.
    [[nodiscard]] static QString textOf(const FanCurvePoint& point,
                                        const std::optional<SMCFanReading>& fan);
};

/// The temperature that drives the curve now, and what the curve makes of it.
struct CurveLiveMarker {
    Q_GADGET
    Q_PROPERTY(bool isShown MEMBER isShown CONSTANT FINAL)
    Q_PROPERTY(double x MEMBER x CONSTANT FINAL)
    Q_PROPERTY(double operatingY MEMBER operatingY CONSTANT FINAL)
    Q_PROPERTY(double labelX MEMBER labelX CONSTANT FINAL)
    Q_PROPERTY(double temperature MEMBER temperature CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(QString operatingText MEMBER operatingText CONSTANT FINAL)
    Q_PROPERTY(bool hasActual MEMBER hasActual CONSTANT FINAL)
    Q_PROPERTY(double actualY MEMBER actualY CONSTANT FINAL)
    QML_VALUE_TYPE(curveLiveMarker)

public:
    bool isShown = false;
    double x = 0;           ///< in the plot, points; never outside of it
    double operatingY = 0;  ///< where the curve is at this temperature
    double labelX = 0;      ///< the label's centre
    double temperature = 0; ///< as measured, degrees Celsius
    QString text = {};
    QString operatingText = {}; ///< what the curve asks for: percent, and the speed where known
    bool hasActual = false;
    double actualY = 0; ///< where the fan's measured speed would be asked for

    bool operator==(const CurveLiveMarker&) const = default;

    /// Whole percent, and with a fan the speed that this is.
    [[nodiscard]] static QString operatingTextOf(double percent,
                                                 const std::optional<SMCFanReading>& fan);
    /// The percent that is the fan's measured speed, 0 to 100; absent where nobody can say.
    [[nodiscard]] static std::optional<double>
    actualPercent(const std::optional<SMCFanReading>& fan);
};

} // namespace kestrowind
