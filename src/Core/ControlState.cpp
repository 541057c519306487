#include "Core/ControlState.h"

#include "Core/AssignIfChanged.h"
#include "Core/ControlEngine.h"

namespace kestrowind {

std::optional<HelperControlPhase> ControlState::Facts::phase() const {
    return status ? std::optional(status->phase) : std::nullopt;
}

ControlState::ControlState(const HelperControlling& helper, const ControlEngine& engine)
    : m_helper(helper)
    , m_engine(engine) {
    connect(&helper, &HelperControlling::stateChanged, this, &ControlState::update);
    connect(&helper, &HelperControlling::lastStatusChanged, this, &ControlState::update);
    connect(&engine, &ControlEngine::isOverridingChanged, this, &ControlState::update);
    connect(&engine, &ControlEngine::quickBoostPercentChanged, this, &ControlState::update);
    connect(&engine.watch(), &ControlWatch::isDeniedChanged, this, &ControlState::update);
    update();
}

void ControlState::update() {
    if (assignIfChanged(m_facts, Facts{.helper = m_helper.state(),
                                       .status = m_helper.lastStatus(),
                                       .isDenied = m_engine.watch().isDenied(),
                                       .isQuickBoosting = m_engine.isOverriding() &&
                                                          m_engine.quickBoostPercent() > 0}))
        Q_EMIT changed();
}

} // namespace kestrowind
