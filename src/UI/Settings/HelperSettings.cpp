#include "UI/Settings/HelperSettings.h"

#include "Core/AssignIfChanged.h"
#include "Core/ControlWatch.h"

#include <QPointer>

namespace kestrowind {

HelperSettings::HelperSettings(HelperControlling& helper, const ControlWatch& watch,
                               HelperOperation& operation, std::chrono::milliseconds interval)
    : m_helper(helper)
    , m_watch(watch)
    , m_operation(operation) {
    connect(&helper, &HelperControlling::stateChanged, this, &HelperSettings::statusChanged);
    connect(&watch, &ControlWatch::isDeniedChanged, this, &HelperSettings::statusChanged);
    connect(&helper, &HelperControlling::lastStatusChanged, this,
            &HelperSettings::lastStatusChanged);
    connect(&operation, &HelperOperation::isWorkingChanged, this,
            &HelperSettings::isWorkingChanged);
    connect(&operation, &HelperOperation::errorMessageChanged, this,
            &HelperSettings::errorMessageChanged);
    m_nextQuestion.setSingleShot(true);
    m_nextQuestion.setTimerType(Qt::PreciseTimer);
    m_nextQuestion.setInterval(interval);
    connect(&m_nextQuestion, &QTimer::timeout, this, &HelperSettings::askForStatus);
}

HelperSettings::~HelperSettings() {
    m_operation.disconnect(this);
    m_operation.forgetError();
}

HelperStatusFacts HelperSettings::status() const {
    return HelperStatusFacts::of(m_helper.state(), m_watch.isDenied());
}

bool HelperSettings::hasFailure() const {
    const auto status = m_helper.lastStatus();
    return status && status->phase == HelperControlPhase::failed && status->lastError;
}

QString HelperSettings::failure() const {
    return hasFailure() ? QString::fromStdString(*m_helper.lastStatus()->lastError) : QString();
}

bool HelperSettings::isUnlocking() const {
    const auto status = m_helper.lastStatus();
    return status && status->phase == HelperControlPhase::unlocking;
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
    co_await m_helper.fetchStatus();
    if (self && m_isSeen && m_appearance == appearance)
        m_nextQuestion.start();
}

} // namespace kestrowind
