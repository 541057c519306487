#include "Helper/HelperService.h"

#include "Helper/HelperLog.h"

#include <algorithm>
#include <system_error>
#include <tuple>
#include <utility>

namespace kestrowind {

HelperService::HelperService(FanController& controller, HelperListener& listener,
                             std::vector<std::filesystem::path> installedFiles, Clock now)
    : m_controller(controller)
    , m_listener(listener)
    , m_installedFiles(std::move(installedFiles))
    , m_now(std::move(now)) {}

void HelperService::callerCame(CallerID caller) {
    if (m_callers.size() >= mostCallers)
        makeRoom();
    const auto now = m_now();
    m_callers.insert_or_assign(caller, Caller{.lastWord = now, .secondBegan = now});
}

void HelperService::makeRoom() {
    // Whoever came and said nothing goes first, then whoever was silent for longest; whoever drives
    // the fans stays.
    const auto isBetter = [this](const auto& one, const auto& other) {
        const auto rank = [this](const auto& entry) {
            const auto& [id, caller] = entry;
            return std::tuple(id == m_holder, caller.hasCalled, caller.lastWord);
        };
        return rank(one) < rank(other);
    };
    hangUp(std::ranges::min_element(m_callers, isBetter)->first);
}

bool HelperService::admitCall(CallerID id) {
    const auto found = m_callers.find(id);
    if (found == m_callers.end())
        return false;
    Caller& caller = found->second;
    const auto now = m_now();
    if (now - caller.secondBegan >= std::chrono::seconds(1)) {
        caller.secondBegan = now;
        caller.callsThisSecond = 0;
    }
    caller.hasCalled = true;
    caller.lastWord = now;
    if (++caller.callsThisSecond <= mostCallsPerSecond)
        return true;
    HelperLog::fault("hung up on a caller that floods");
    hangUp(id);
    return false;
}

void HelperService::hangUp(CallerID caller) {
    m_listener.hangUp(caller);
    callerGone(caller);
}

void HelperService::callerGone(CallerID caller) {
    m_callers.erase(caller);
    if (m_holder == caller)
        releaseControl();
}

std::expected<std::vector<double>, std::string>
HelperService::setTargets(CallerID caller, std::span<const double> targets) {
    if (m_isAsleep)
        return m_controller.status().effectiveTargets;
    auto applied = m_controller.setTargets(targets);
    if (applied)
        m_holder = caller;
    tick();
    return applied;
}

void HelperService::releaseControl() {
    m_controller.releaseControl();
    m_holder.reset();
    tick();
}

HelperStatus HelperService::status() {
    tick();
    return m_controller.status();
}

bool HelperService::uninstall() {
    releaseControl();
    bool isGone = true;
    for (const auto& file : m_installedFiles) {
        std::error_code error;
        std::filesystem::remove(file, error);
        isGone = isGone && !error;
    }
    return isGone;
}

void HelperService::tick() {
    m_controller.tick();
    m_listener.setTicking(m_controller.needsTicks());
    logPhase();
}

void HelperService::logPhase() {
    if (std::exchange(m_loggedPhase, m_controller.phase()) == m_controller.phase())
        return;
    if (m_loggedPhase == HelperControlPhase::failed)
        HelperLog::fault(m_controller.status().lastError.value_or(""));
    else
        HelperLog::note(text(m_loggedPhase));
}

void HelperService::systemWillSleep() {
    m_isAsleep = true;
    releaseControl();
}

} // namespace kestrowind
