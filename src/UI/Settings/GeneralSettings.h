#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class LoginItem;
class UserDefaults;

/// Launch at login, and the Dock icon.
class GeneralSettings final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool launchesAtLogin READ launchesAtLogin NOTIFY launchesAtLoginChanged FINAL)
    Q_PROPERTY(
        QString launchAtLoginError READ launchAtLoginError NOTIFY launchAtLoginErrorChanged FINAL)
    Q_PROPERTY(bool hidesDockIcon READ hidesDockIcon NOTIFY hidesDockIconChanged FINAL)
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
    /// While the main window is closed.
    [[nodiscard]] bool hidesDockIcon() const;
    Q_INVOKABLE void setHidesDockIcon(bool hides);

    /// The section came on screen: the user may have changed the login item elsewhere.
    void appear();

Q_SIGNALS:
    void launchesAtLoginChanged();
    void launchAtLoginErrorChanged();
    void hidesDockIconChanged();

private:
    void showLaunchesAtLogin(bool launches);
    void showError(const QString& error);

    UserDefaults& m_userDefaults;
    LoginItem& m_loginItem;
    bool m_launchesAtLogin;
    QString m_launchAtLoginError;
};

} // namespace kestrowind
