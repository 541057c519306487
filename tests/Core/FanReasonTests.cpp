#include "Core/FanReason.h"
#include "Core/FanReasonText.h"
#include "Support/QtPrinters.h"

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using Cause = FanReason::Cause;
using Movement = FanReason::Movement;
using testing::ElementsAre;
using testing::HasSubstr;

TelemetrySample sampleOf(double actualRPM) {
    return {.timestamp = {},
            .temperatures = {.hottest = 91},
            .fans = {{.index = 0, .actualRPM = 1500, .minRPM = 1000, .maxRPM = 5000},
                     {.index = 1, .actualRPM = actualRPM, .minRPM = 1000, .maxRPM = 5000}}};
}

/// “Cool” asks for 30 percent at 55 degrees, which is 2,200 rpm of this fan.
ControlDemand demand(double boost = 0) {
    const double speed = 1000 + 40 * std::max(boost, 30.0);
    return {.preset = FanPreset::builtIns(2).front(),
            .temperature = 55,
            .measuredTemperature = 55,
            .boostPercent = boost,
            .targets = {speed, speed}};
}

TEST(FanReason, IsTheFirstThatDecides) {
    using State = HelperState;
    const auto in = [](HelperControlPhase phase) { return HelperStatus{.phase = phase}; };
    const ControlState::Facts driving{.helper = State::installed};
    const ControlState::Facts missing{};
    const ControlState::Facts unlocking{.helper = State::installed,
                                        .status = in(HelperControlPhase::unlocking)};
    const ControlState::Facts failed{.helper = State::installed,
                                     .status = in(HelperControlPhase::failed)};
    const ControlState::Facts denied{.helper = State::installed, .isDenied = true};
    ControlDemand cold = demand();
    cold.targets.clear();
    struct Row {
        Cause cause;
        ControlState::Facts control;
        ControlDemand demand;
        std::vector<double> applied;
        Movement movement = Movement::settled;
        double actual = 2200;
    };
    for (const Row& row : {
             Row{Cause::noHelper, missing, demand(), {}},
             Row{Cause::automatic, driving, {}, {}},
             Row{Cause::noDemand, driving, cold, {}},
             Row{Cause::waitingForControl, unlocking, demand(), {2200, 2200}},
             Row{Cause::notConfirmed, driving, demand(), {}},
             Row{Cause::notConfirmed, denied, demand(), {2200, 2200}},
             Row{Cause::notConfirmed, failed, demand(), {0, 0}},
             Row{Cause::notConfirmed, driving, demand(), {2200}},
             Row{Cause::notConfirmed, driving, demand(), {2200, 1900}},
             Row{Cause::curve, driving, demand(), {2200, 2200}},
             Row{Cause::curve, driving, demand(20), {2200, 2200}},
             Row{Cause::curve, driving, demand(), {2200, 2201}},
             Row{Cause::quickBoost, driving, demand(30), {2200, 2200}},
             Row{Cause::quickBoost, driving, demand(50), {3000, 3000}, Movement::speedingUp},
             Row{Cause::safetyFloor, driving, demand(), {2200, 3100}, Movement::speedingUp},
             Row{Cause::curve, driving, demand(), {2200, 2200}, Movement::slowingDown, 2400},
             Row{Cause::curve, driving, demand(), {2200, 2200}, Movement::settled, 2290},
         }) {
        const auto reason =
            FanReason::of(row.control, row.demand, row.applied, sampleOf(row.actual), 1);
        EXPECT_STREQ(FanReason::word(reason.cause), FanReason::word(row.cause))
            << row.demand.boostPercent;
        EXPECT_EQ(reason.movement, row.movement) << row.actual;
    }
}

TEST(FanReason, TellsHowItCameAboutInItsNumbers) {
    ControlDemand cooling = demand(10);
    cooling.measuredTemperature = 52.25;
    const ControlState::Facts driving{.helper = HelperState::installed};
    const auto reason = FanReason::of(driving, cooling, {2200, 3875}, sampleOf(3720), 1);
    EXPECT_EQ(FanReasonText::sentence(reason), u"Safety floor: 91 °C"_s);
    EXPECT_THAT(FanReasonText::chain(reason),
                ElementsAre(u"Temperature: 52.3 °C, held at 55.0 °C while it cools"_s,
                            u"“\u2068Cool\u2069” asks for 30%."_s,
                            u"The quick boost of 10% is less."_s,
                            u"At 91 °C the helper keeps the fan above that."_s,
                            u"2200 rpm asked for, 3875 applied, 3720 measured"_s,
                            u"The fan is speeding up."_s));
    const auto curve = FanReason::of(driving, demand(), {2200, 2200}, sampleOf(2200), 1);
    EXPECT_EQ(FanReasonText::sentence(curve), u"30% for 55 °C on “\u2068Cool\u2069”"_s);
    // Every cause has its words.
    for (int cause = 0; cause <= static_cast<int>(Cause::safetyFloor); ++cause) {
        FanReason other = reason;
        other.cause = static_cast<Cause>(cause);
        EXPECT_FALSE(FanReasonText::sentence(other).startsWith(u"reason"_s));
        EXPECT_FALSE(FanReasonText::chain(other).join(u' ').contains(u"reason."_s));
    }
}

} // namespace
} // namespace kestrowind
