#pragma once

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class HelperControlling;

/// The installation or removal of the helper that is under way. It outlives the settings screen,
/// which may be left while the password dialog is open, so that no second one is started meanwhile.
/// Belongs to the main thread.
class HelperOperation final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isWorking READ isWorking NOTIFY changed FINAL)
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY changed FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's scenes")

public:
    /// The helper must outlive the operation.
    explicit HelperOperation(HelperControlling& helper);

    /// Neither does anything while one runs. Reinstalling is installing.
    Q_INVOKABLE void install() { runInstallation(); }
    Q_INVOKABLE void uninstall() { runRemoval(); }

    [[nodiscard]] bool isWorking() const { return m_isWorking; }
    /// Why the last one failed, in the user's language; empty otherwise.
    [[nodiscard]] const QString& errorMessage() const { return m_errorMessage; }
    /// The screen that showed it is gone.
    void forgetError() { show(m_isWorking, {}); }

Q_SIGNALS:
    void changed();

private:
    QCoro::Task<void> runInstallation();
    QCoro::Task<void> runRemoval();
    void show(bool isWorking, const QString& errorMessage);

    HelperControlling& m_helper;
    bool m_isWorking = false;
    QString m_errorMessage;
};

} // namespace kestrowind
