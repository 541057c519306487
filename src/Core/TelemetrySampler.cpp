#include "Core/TelemetrySampler.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/SMCKit/SMCConnection.h"
#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include <QTimer>

#include <memory>

namespace kestrowind {

using namespace Qt::StringLiterals;

/// Everything that lives on the sampler's thread; nothing here is touched from elsewhere.
class TelemetrySampler::Ticker final : public QObject {
public:
    explicit Ticker(SMCUserClientFactory makeUserClient)
        : m_makeUserClient(std::move(makeUserClient))
        , m_timer(this) {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, &Ticker::tick);
    }

    void start(std::chrono::milliseconds interval, OnSample onSample) {
        openOnce();
        m_onSample = std::move(onSample);
        m_timer.start(interval);
        tick();
    }

private:
    void openOnce() {
        if (m_smc)
            return;
        auto opened = SMCConnection::open(m_makeUserClient());
        if (!opened)
            return;
        m_smc = std::move(*opened);
        m_sensors = std::make_unique<SMCTemperatureSensors>(*m_smc);
    }

    void tick() {
        if (!m_smc)
            return;
        TelemetrySample sample{
            .timestamp = std::chrono::system_clock::now(), .temperatures = {}, .fans = {}};
        sample.temperatures = m_sensors->snapshot();
        if (auto fans = m_smc->readAllFans())
            sample.fans = std::move(*fans);
        m_onSample(sample);
    }

    SMCUserClientFactory m_makeUserClient;
    QTimer m_timer;
    OnSample m_onSample;
    std::unique_ptr<SMCConnection> m_smc;
    std::unique_ptr<SMCTemperatureSensors> m_sensors;
};

TelemetrySampler::TelemetrySampler(SMCUserClientFactory makeUserClient)
    : m_ticker(new Ticker(std::move(makeUserClient))) {
    m_queue.setObjectName(QString::fromLatin1(HelperConstants::bundleIdentifier) + u".telemetry"_s);
    m_ticker->moveToThread(&m_queue);
    QObject::connect(&m_queue, &QThread::finished, m_ticker, &QObject::deleteLater);
    m_queue.start(QThread::LowPriority);
}

TelemetrySampler::~TelemetrySampler() {
    m_queue.quit();
    m_queue.wait();
}

void TelemetrySampler::start(std::chrono::milliseconds interval, OnSample onSample) {
    QMetaObject::invokeMethod(
        m_ticker,
        [ticker = m_ticker, interval, onSample = std::move(onSample)] {
            ticker->start(interval, onSample);
        },
        Qt::QueuedConnection);
}

} // namespace kestrowind
