#pragma once

#include "Core/FanFacts.h"
#include "Core/FanReason.h"
#include "UI/DesignSystem/RowListModel.h"

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kestrowind {

/// What the gauge of one fan shows.
struct FanGaugeFacts {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString readout MEMBER readout CONSTANT FINAL)
    Q_PROPERTY(QString caption MEMBER caption CONSTANT FINAL)
    Q_PROPERTY(QString spoken MEMBER spoken CONSTANT FINAL)
    Q_PROPERTY(QString reason MEMBER reason CONSTANT FINAL)
    Q_PROPERTY(QString explanation MEMBER explanation CONSTANT FINAL)
    Q_PROPERTY(QString targetText MEMBER targetText CONSTANT FINAL)
    Q_PROPERTY(double targetFraction MEMBER targetFraction CONSTANT FINAL)
    Q_PROPERTY(double fraction MEMBER fraction CONSTANT FINAL)
    Q_PROPERTY(double revolutionsPerSecond MEMBER revolutionsPerSecond CONSTANT FINAL)
    Q_PROPERTY(bool isParked MEMBER isParked CONSTANT FINAL)
    Q_PROPERTY(bool isDashed MEMBER isDashed CONSTANT FINAL)
    QML_VALUE_TYPE(fanGaugeFacts)

public:
    int index = 0; ///< the fan's number, its identity
    QString name = {};
    QString readout = {};
    QString caption = {};
    QString spoken = {};             ///< the gauge as one sentence
    QString reason = {};             ///< why the fan runs as it does, in a line
    QString explanation = {};        ///< and how that came about, a step a line
    QString targetText = {};         ///< what the helper applies; empty of a fan that it leaves
    double targetFraction = -1;      ///< the same of the ring; -1 where there is none
    double fraction = 0;             ///< of the ring, 0 to 1 in steps of a thousandth
    double revolutionsPerSecond = 0; ///< of the glyph
    bool isParked = false;           ///< the glyph stands still
    bool isDashed = false;           ///< its line in the chart

    bool operator==(const FanGaugeFacts&) const = default;

    [[nodiscard]] static FanGaugeFacts of(const SMCFanReading& fan, const FanReason& reason,
                                          qsizetype position, qsizetype totalFanCount);
    /// One reason a fan, in the same order.
    [[nodiscard]] static QList<FanGaugeFacts> of(const std::vector<SMCFanReading>& fans,
                                                 const QList<FanReason>& reasons);
};

using FanGauges = RowListModel<FanGaugeFacts, &FanGaugeFacts::index>;

} // namespace kestrowind
