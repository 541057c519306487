#include "UI/Settings/HelperOperation.h"

#include "Core/AssignIfChanged.h"
#include "Core/HelperControlling.h"

#include <QPointer>

namespace kestrowind {

HelperOperation::HelperOperation(HelperControlling& helper)
    : m_helper(helper) {}

QCoro::Task<void> HelperOperation::install() {
    if (m_isWorking)
        co_return;
    const QPointer<HelperOperation> self(this);
    begin();
    const auto outcome = co_await m_helper.install();
    if (self)
        finish(outcome ? QString() : outcome.error().localizedDescription());
}

QCoro::Task<void> HelperOperation::uninstall() {
    if (m_isWorking)
        co_return;
    const QPointer<HelperOperation> self(this);
    begin();
    // Whether the helper is gone shows in its state.
    co_await m_helper.uninstall();
    if (self)
        finish({});
}

void HelperOperation::begin() {
    setWorking(true);
    setErrorMessage({});
}

void HelperOperation::finish(const QString& errorMessage) {
    setErrorMessage(errorMessage);
    setWorking(false);
}

void HelperOperation::setWorking(bool isWorking) {
    if (assignIfChanged(m_isWorking, isWorking))
        Q_EMIT isWorkingChanged();
}

void HelperOperation::setErrorMessage(const QString& message) {
    if (assignIfChanged(m_errorMessage, message))
        Q_EMIT errorMessageChanged();
}

} // namespace kestrowind
