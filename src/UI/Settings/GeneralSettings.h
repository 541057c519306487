#pragma once

#include "UI/Settings/SettingSwitch.h"

#include <QObject>
#include <QQmlListProperty>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class LoginItem;

/// Launch at login, the Dock icon, and which alerts the user wants to hear.
class GeneralSettings final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool launchesAtLogin READ launchesAtLogin NOTIFY launchesAtLoginChanged FINAL)
    Q_PROPERTY(
        QString launchAtLoginError READ launchAtLoginError NOTIFY launchAtLoginErrorChanged FINAL)
    Q_PROPERTY(bool needsApproval READ needsApproval NOTIFY needsApprovalChanged FINAL)
    Q_PROPERTY(QQmlListProperty<kestrowind::SettingSwitch> switches READ switches CONSTANT FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's state")

public:
    /// Both references must outlive this.
    GeneralSettings(UserDefaults& userDefaults, LoginItem& loginItem);

    /// What the system said when it was last asked.
    [[nodiscard]] bool launchesAtLogin() const { return m_launchesAtLogin; }
    Q_INVOKABLE void setLaunchesAtLogin(bool wanted);
    /// Why that could not be changed; empty otherwise.
    [[nodiscard]] const QString& launchAtLoginError() const { return m_launchAtLoginError; }
    /// The user asked for it, and the system's settings do not allow it.
    [[nodiscard]] bool needsApproval() const { return m_needsApproval; }
    /// In the order in which they stand.
    [[nodiscard]] QQmlListProperty<SettingSwitch> switches() { return {this, &m_switches}; }

    /// The section came on screen: the user may have changed the login item elsewhere.
    void appear();

Q_SIGNALS:
    void launchesAtLoginChanged();
    void launchAtLoginErrorChanged();
    void needsApprovalChanged();

private:
    void showLaunchesAtLogin(bool launches);
    void askForApproval();
    void showError(const QString& error);

    LoginItem& m_loginItem;
    bool m_launchesAtLogin;
    QString m_launchAtLoginError;
    bool m_needsApproval;
    QList<SettingSwitch*> m_switches; ///< children of this
};

} // namespace kestrowind
