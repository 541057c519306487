#include "Fuzz/Require.h"
#include "Helper/HelperService.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/SMCKit/SMCConnection.h"
#include "Simulator/SimulatedSMC.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

using namespace kestrowind;

namespace {

constexpr int fanCount = 2;
constexpr double lowest = 1200;
constexpr double highest = 6000;
constexpr std::array<std::string_view, 7> breakable{"F0Md", "F1md", "Ftst", "F0Tg",
                                                    "F1Tg", "Tp01", "F0Ac"};

class SilentListener final : public HelperListener {
public:
    void hangUp(CallerID) override {}
    void setTicking(bool ticking) override { isTicking = ticking; }

    bool isTicking = false;
};

/// A machine, a helper and its callers, and what must hold of them whatever happens.
class World {
public:
    World() {
        smc->setByte("FNum", fanCount);
        for (int fan = 0; fan < fanCount; ++fan) {
            for (const auto& [suffix, speed] : {std::pair{"Ac", lowest}, std::pair{"Tg", lowest},
                                                std::pair{"Mn", lowest}, std::pair{"Mx", highest}})
                smc->setFloat(smcFanKey(fan, suffix), static_cast<float>(speed));
        }
        smc->setByte("F0Md", 0);
        smc->setByte("F1md", 0);
        smc->setByte("Ftst", 0);
        smc->setFloat("Tp01", 40);
        controller.emplace([this] { return smc; }, [this] { return now; });
        service.emplace(*controller, listener, std::vector<std::filesystem::path>{},
                        [this] { return now; });
    }

    void call(CallerID caller, std::uint8_t what, std::span<const std::uint8_t> speeds) {
        const bool isIn = std::ranges::count(callers, caller) > 0;
        if (!isIn) {
            callers.push_back(caller);
            service->callerCame(caller);
        }
        if (!service->admitCall(caller))
            return;
        if (what % 4 == 0) {
            service->releaseControl();
        } else if (what % 4 == 1) {
            (void)service->status();
        } else {
            std::vector<double> targets;
            for (const std::uint8_t speed : speeds)
                targets.push_back(speed == 255 ? NAN : 30.0 * speed);
            if (service->setTargets(caller, targets)) {
                lastTargets = now;
                holder = caller;
            }
        }
    }
    void leave(CallerID caller) {
        if (std::erase(callers, caller) > 0)
            service->callerGone(caller);
        if (holder == caller)
            requireHandedBack();
    }
    void pass(std::chrono::milliseconds time) {
        now += time;
        if (listener.isTicking)
            service->tick();
        if (now - lastTargets > HelperConstants::heartbeatTimeout)
            KESTROWIND_REQUIRE(!controller->isHolding());
    }
    void breakKey(std::uint8_t which, std::uint8_t how) {
        const auto key = breakable[which % breakable.size()];
        if (how % 4 == 3)
            smc->setFault(key, std::nullopt);
        else
            smc->setFault(key, static_cast<SimulatedSMC::Fault>(how % 4));
    }
    void heat(std::uint8_t celsius) { smc->storeFloat("Tp01", celsius); }
    void mendAll() {
        for (const auto key : breakable)
            smc->setFault(key, std::nullopt);
        pass(FanController::tickInterval);
        requireSafe();
    }

    /// What can be reached with nothing broken.
    void requireSafe() {
        const HelperStatus status = service->status();
        for (int fan = 0; fan < fanCount; ++fan) {
            const auto index = static_cast<std::size_t>(fan);
            if (byte(modeKeys[index]) == 0)
                continue;
            KESTROWIND_REQUIRE(controller->isHolding());
            if (status.phase != HelperControlPhase::controlling)
                continue;
            const double target = status.effectiveTargets.at(index);
            KESTROWIND_REQUIRE(target >= lowest && target <= highest);
            KESTROWIND_REQUIRE(target >= std::min(status.autoFloors.at(index), highest));
            const double written = *machine->readFloat(smcFanKey(fan, "Tg"));
            KESTROWIND_REQUIRE(written >= lowest && written <= highest);
        }
    }
    void requireHandedBack() {
        KESTROWIND_REQUIRE(!controller->isHolding());
        for (const auto key : modeKeys)
            KESTROWIND_REQUIRE(byte(key) == 0 || isBroken(key) || listener.isTicking);
    }

    std::chrono::steady_clock::time_point now{std::chrono::hours(1)};

private:
    [[nodiscard]] bool isBroken(std::string_view key) const { return !machine->readUInt8(key); }
    [[nodiscard]] int byte(std::string_view key) const {
        return machine->readUInt8(key).value_or(0);
    }

    static constexpr std::array<std::string_view, fanCount> modeKeys{"F0Md", "F1md"};
    std::shared_ptr<SimulatedSMC> smc = std::make_shared<SimulatedSMC>();
    std::unique_ptr<SMCConnection> machine = SMCConnection::open(smc).value();
    SilentListener listener;
    std::optional<FanController> controller;
    std::optional<HelperService> service;
    std::vector<CallerID> callers;
    std::optional<CallerID> holder;
    std::chrono::steady_clock::time_point lastTargets;
};

} // namespace

/// A day of a helper: callers come, ask for this and that and go, time passes, the machine heats
/// up, keys break and come back. Five bytes an event.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    World world;
    for (std::span events(data, size); events.size() >= 5; events = events.subspan(5)) {
        const std::uint8_t what = events[1];
        switch (events[0] % 7) {
        case 0:
        case 1:
            world.call(what % 5, events[2], events.subspan(3, 2));
            break;
        case 2:
            world.leave(what % 5);
            break;
        case 3:
            world.pass(std::chrono::milliseconds(50 * what));
            break;
        case 4:
            world.breakKey(what, events[2]);
            break;
        case 5:
            world.heat(what);
            break;
        case 6:
            world.mendAll();
            break;
        }
    }
    world.mendAll();
    world.pass(std::chrono::seconds(7));
    world.requireSafe();
    world.requireHandedBack();
    return 0;
}
