#pragma once

#include "Core/TelemetrySample.h"
#include "Shared/SMCKit/SMCUserClient.h"

#include <QThread>

#include <chrono>
#include <functional>

namespace kestrowind {

/// The application's only periodic reader of the SMC: a thread of its own that opens the SMC once,
/// finds the sensors, and then takes a sample at once and at every interval.
///
/// Failures are silent: an SMC that cannot be opened gives no samples, fans that cannot be read
/// give samples without fans. There is no stop; destroying the sampler ends its thread, and
/// waits for no more than the call to the SMC that is under way.
class TelemetrySampler final {
public:
    /// Called on the sampler's thread, once a tick.
    using OnSample = std::function<void(const TelemetrySample&)>;

    explicit TelemetrySampler(SMCUserClientFactory makeUserClient);
    TelemetrySampler(const TelemetrySampler&) = delete;
    TelemetrySampler& operator=(const TelemetrySampler&) = delete;
    ~TelemetrySampler();

    /// Returns at once. A second start keeps the open SMC and replaces interval and callback.
    void start(std::chrono::milliseconds interval, OnSample onSample);

private:
    class Ticker;

    QThread m_queue;
    Ticker* m_ticker; ///< lives on m_queue and goes with it
};

} // namespace kestrowind
