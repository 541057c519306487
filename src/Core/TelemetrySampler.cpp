#include "Core/TelemetrySampler.h"

#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/SMCKit/SMCConnection.h"
#include "Shared/SMCKit/SMCTemperatureSensors.h"

#include <QTimer>

#include <memory>

namespace kestrowind {

using namespace Qt::StringLiterals;
namespace {

/// Refuses every call once its thread is told to end: a machine that answers late, or never, would
/// otherwise hold up that end for each of the many calls of a tick.
class InterruptibleUserClient final : public SMCUserClient {
public:
    explicit InterruptibleUserClient(std::shared_ptr<SMCUserClient> client)
        : m_client(std::move(client)) {}

    std::uint32_t matchingService(std::string_view className) override {
        return isInterrupted() ? 0 : m_client->matchingService(className);
    }
    void releaseService(std::uint32_t service) override { m_client->releaseService(service); }
    Opened open(std::uint32_t service, std::uint32_t connectionType) override {
        return m_client->open(service, connectionType);
    }
    void close(std::uint32_t connection) override { m_client->close(connection); }
    std::int32_t callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                  const SMCParamStruct& input, SMCParamStruct& output) override {
        return isInterrupted() ? -1
                               : m_client->callStructMethod(connection, selector, input, output);
    }

    static bool isInterrupted() { return QThread::currentThread()->isInterruptionRequested(); }

private:
    std::shared_ptr<SMCUserClient> m_client;
};

} // namespace

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
        auto opened =
            SMCConnection::open(std::make_shared<InterruptibleUserClient>(m_makeUserClient()));
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
        if (!InterruptibleUserClient::isInterrupted())
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
    m_queue.requestInterruption();
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
