#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// What the card of one processor shows.
struct TemperatureFacts {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString average MEMBER average CONSTANT FINAL)
    Q_PROPERTY(QString hottestCore MEMBER hottestCore CONSTANT FINAL)
    Q_PROPERTY(QString sessionPeak MEMBER sessionPeak CONSTANT FINAL)
    Q_PROPERTY(QString spoken MEMBER spoken CONSTANT FINAL)
    QML_VALUE_TYPE(temperatureFacts)

public:
    QString title = {};
    QString average = {};
    QString hottestCore = {};
    QString sessionPeak = {};
    QString spoken = {}; ///< the card as one sentence

    bool operator==(const TemperatureFacts&) const = default;

    struct Celsius {
        double average = 0;
        double hottestCore = 0;
        double sessionPeak = 0;
    };
    [[nodiscard]] static TemperatureFacts of(const QString& title, const Celsius& celsius);
};

} // namespace kestrowind
