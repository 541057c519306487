#pragma once

#include <QList>
#include <QObject>
#include <QPolygonF>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// Everything that is drawn in one chart of the history; x is minutes before the newest sample.
struct LineChart {
    Q_GADGET
    Q_PROPERTY(QString spoken MEMBER spoken CONSTANT FINAL)
    QML_VALUE_TYPE(lineChart)

public:
    /// What a line is drawn with; the scheme gives the colour.
    enum class Ink { cpu, gpu, foreground };

    struct Domain {
        double lower = 0;
        double upper = 1;
        [[nodiscard]] double length() const { return upper - lower; }
        bool operator==(const Domain&) const = default;
    };
    struct Tick {
        double position = 0;
        QString label = {};
        bool operator==(const Tick&) const = default;
    };
    struct Series {
        QString name = {};
        QString readout = {};  ///< one value in words, with a place for the number
        QPolygonF points = {}; ///< oldest first
        Ink ink = Ink::foreground;
        bool isDashed = false;
        bool isFilled = false; ///< a fading area below the line
        bool operator==(const Series&) const = default;
    };

    Domain time = {};
    Domain values = {};
    QList<Tick> timeTicks = {};
    QList<Tick> valueTicks = {};
    QList<Series> series = {};
    QString spoken = {}; ///< the chart as one sentence

    bool operator==(const LineChart&) const = default;
};

} // namespace kestrowind
