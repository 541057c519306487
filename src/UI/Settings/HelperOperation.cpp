#include "UI/Settings/HelperOperation.h"

#include "Core/AssignIfChanged.h"
#include "Core/HelperControlling.h"

#include <QPointer>

#include <utility>

namespace kestrowind {

HelperOperation::HelperOperation(HelperControlling& helper)
    : m_helper(helper) {}

QCoro::Task<void> HelperOperation::runInstallation() {
    if (m_isWorking)
        co_return;
    const QPointer<HelperOperation> self(this);
    show(true, {});
    const auto outcome = co_await m_helper.install();
    if (self)
        show(false, outcome ? QString() : outcome.error().localizedDescription());
}

QCoro::Task<void> HelperOperation::runRemoval() {
    if (m_isWorking)
        co_return;
    const QPointer<HelperOperation> self(this);
    show(true, {});
    // Whether the helper is gone shows in its state.
    co_await m_helper.uninstall();
    if (self)
        show(false, {});
}

void HelperOperation::show(bool isWorking, const QString& errorMessage) {
    const bool wasWorking = std::exchange(m_isWorking, isWorking);
    if (assignIfChanged(m_errorMessage, errorMessage) || wasWorking != isWorking)
        Q_EMIT changed();
}

} // namespace kestrowind
