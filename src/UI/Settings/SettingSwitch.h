#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class UserDefaults;

/// A user default that is on or off, as a switch of the settings.
class SettingSwitch final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT FINAL)
    Q_PROPERTY(bool isOn READ isOn WRITE setOn NOTIFY isOnChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a section of the settings")

public:
    /// The texts are for people. The defaults must outlive this.
    SettingSwitch(UserDefaults& userDefaults, const QString& key, const QString& title,
                  const QString& subtitle, QObject* parent);

    [[nodiscard]] const QString& title() const { return m_title; }
    [[nodiscard]] const QString& subtitle() const { return m_subtitle; }
    /// What counts: a launch argument rather than what was stored.
    [[nodiscard]] bool isOn() const;
    void setOn(bool isOn);

Q_SIGNALS:
    void isOnChanged();

private:
    UserDefaults& m_userDefaults;
    QString m_key;
    QString m_title;
    QString m_subtitle;
};

} // namespace kestrowind
