#pragma once

#include <QCoroTask>
#include <QObject>
#include <QString>

namespace kestrowind {

class HelperControlling;

/// The installation or removal of the helper that is under way. It outlives the settings screen,
/// which may be left while the password dialog is open, so that no second one is started meanwhile.
/// Belongs to the main thread.
class HelperOperation final : public QObject {
    Q_OBJECT

public:
    /// The helper must outlive the operation.
    explicit HelperOperation(HelperControlling& helper);

    /// Neither does anything while one runs. Reinstalling is installing.
    QCoro::Task<void> install();
    QCoro::Task<void> uninstall();

    [[nodiscard]] bool isWorking() const { return m_isWorking; }
    /// Why the last one failed, in the user's language; empty otherwise.
    [[nodiscard]] const QString& errorMessage() const { return m_errorMessage; }
    /// The screen that showed it is gone.
    void forgetError() { setErrorMessage({}); }

Q_SIGNALS:
    void isWorkingChanged();
    void errorMessageChanged();

private:
    void begin();
    void finish(const QString& errorMessage);
    void setWorking(bool isWorking);
    void setErrorMessage(const QString& message);

    HelperControlling& m_helper;
    bool m_isWorking = false;
    QString m_errorMessage;
};

} // namespace kestrowind
