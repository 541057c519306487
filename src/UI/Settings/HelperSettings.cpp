#include "UI/Settings/HelperSettings.h"

#include "Core/AssignIfChanged.h"
#include "Core/ControlState.h"
#include "Platform/SystemInformation.h"
#include "Shared/HelperShared/HelperConstants.h"

#include <QPointer>

namespace kestrowind {

HelperSettings::HelperSettings(HelperControlling& helper, const ControlState& control,
                               HelperOperation& operation, const SystemInformation& information,
                               std::chrono::milliseconds interval)
    : m_helper(helper)
    , m_control(control)
    , m_operation(operation)
    , m_information(information) {
    connect(&control, &ControlState::changed, this, &HelperSettings::changed);
    m_nextQuestion.setSingleShot(true);
    m_nextQuestion.setTimerType(Qt::PreciseTimer);
    m_nextQuestion.setInterval(interval);
    connect(&m_nextQuestion, &QTimer::timeout, this, &HelperSettings::askForStatus);
}

HelperSettings::~HelperSettings() {
    m_operation.forgetError();
}

HelperStatusFacts HelperSettings::status() const {
    return HelperStatusFacts::of(m_control.facts());
}

bool HelperSettings::hasStatus() const {
    return m_control.facts().status.has_value();
}

QString HelperSettings::version() const {
    const auto& status = m_control.facts().status;
    return status ? QString::fromStdString(status->version) : QString();
}

bool HelperSettings::hasFailure() const {
    const ControlState::Facts& control = m_control.facts();
    return control.hasFailed() && control.status->lastError;
}

QString HelperSettings::failure() const {
    return hasFailure() ? QString::fromStdString(*m_control.facts().status->lastError) : QString();
}

bool HelperSettings::isUnlocking() const {
    return m_control.facts().isTakingControl();
}

void HelperSettings::setSeen(bool isSeen) {
    if (!assignIfChanged(m_isSeen, isSeen))
        return;
    ++m_appearance;
    m_nextQuestion.stop();
    if (isSeen)
        askForStatus();
}

QCoro::Task<void> HelperSettings::askForStatus() {
    const QPointer<HelperSettings> self(this);
    const int appearance = m_appearance;
    askForApproval();
    co_await m_helper.fetchStatus();
    if (self && m_isSeen && m_appearance == appearance)
        m_nextQuestion.start();
}

void HelperSettings::askForApproval() {
    const auto job = QString::fromLatin1(HelperConstants::daemonPlistPath);
    if (assignIfChanged(m_needsApproval,
                        m_helper.isInstalled() && m_information.needsApproval(job)))
        Q_EMIT changed();
}

} // namespace kestrowind
