#pragma once

#include "Core/HelperControlling.h"

#include <QObject>

#include <optional>

namespace kestrowind {

class ControlEngine;

/// How the application stands with the fans: the one place where that is derived, for everybody who
/// shows it or tells of it. Belongs to the main thread.
class ControlState final : public QObject {
    Q_OBJECT

public:
    struct Facts {
        HelperState helper = HelperState::notInstalled;
        /// Absent while the helper has reported none. What it says may be old: of an unreachable
        /// helper it is the last word.
        std::optional<HelperStatus> status = {};
        bool isDenied = false;        ///< nothing that was asked for is done; see ControlWatch
        bool isQuickBoosting = false; ///< the quick boost drives the fans

        /// Absent while the helper has reported none.
        [[nodiscard]] std::optional<HelperControlPhase> phase() const;
        [[nodiscard]] bool isHelperMissing() const { return helper == HelperState::notInstalled; }
        /// The helper waits for the firmware to hand the fans over.
        [[nodiscard]] bool isTakingControl() const {
            return phase() == HelperControlPhase::unlocking;
        }
        [[nodiscard]] bool hasFailed() const { return phase() == HelperControlPhase::failed; }

        bool operator==(const Facts&) const = default;
    };

    /// Both must outlive the state.
    ControlState(const HelperControlling& helper, const ControlEngine& engine);

    [[nodiscard]] const Facts& facts() const { return m_facts; }

Q_SIGNALS:
    void changed();

private:
    void update();

    const HelperControlling& m_helper;
    const ControlEngine& m_engine;
    Facts m_facts;
};

} // namespace kestrowind
