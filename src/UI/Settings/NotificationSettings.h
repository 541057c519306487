#pragma once

#include "Core/AlertNotifier.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class UserDefaults;

/// Which alerts the user wants to hear.
class NotificationSettings final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool helperFailure READ helperFailure NOTIFY changed FINAL)
    Q_PROPERTY(bool standingFan READ standingFan NOTIFY changed FINAL)
    Q_PROPERTY(bool overheating READ overheating NOTIFY changed FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's state")

public:
    /// The defaults must outlive this.
    explicit NotificationSettings(UserDefaults& userDefaults);

    [[nodiscard]] bool helperFailure() const { return isWanted(AlertKind::helperFailed); }
    [[nodiscard]] bool standingFan() const { return isWanted(AlertKind::fanStandsStill); }
    [[nodiscard]] bool overheating() const { return isWanted(AlertKind::overheating); }
    Q_INVOKABLE void setHelperFailure(bool wanted) { set(AlertKind::helperFailed, wanted); }
    Q_INVOKABLE void setStandingFan(bool wanted) { set(AlertKind::fanStandsStill, wanted); }
    Q_INVOKABLE void setOverheating(bool wanted) { set(AlertKind::overheating, wanted); }

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] bool isWanted(AlertKind kind) const;
    void set(AlertKind kind, bool wanted);

    UserDefaults& m_userDefaults;
};

} // namespace kestrowind
