#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class UserDefaults;

/// Which temperature drives the fans. The choice counts from the next sample on.
class FanBoostSettings final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<QString> temperatureSources READ temperatureSources CONSTANT FINAL)
    Q_PROPERTY(int temperatureSource READ temperatureSource NOTIFY temperatureSourceChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's state")

public:
    /// The defaults must outlive this.
    explicit FanBoostSettings(UserDefaults& userDefaults);

    /// For people, in the order in which they are offered.
    [[nodiscard]] QStringList temperatureSources() const;
    /// The index of the one that counts.
    [[nodiscard]] int temperatureSource() const;
    /// Ignored for what is no index.
    Q_INVOKABLE void chooseTemperatureSource(int index);

Q_SIGNALS:
    void temperatureSourceChanged();

private:
    UserDefaults& m_userDefaults;
};

} // namespace kestrowind
