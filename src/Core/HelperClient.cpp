#include "Core/HelperClient.h"

#include "Core/AssignIfChanged.h"
#include "Core/HelperInstallation.h"
#include "Core/Logging.h"
#include "Platform/AdminScriptRunner.h"
#include "Platform/SystemInformation.h"
#include "Shared/HelperShared/FanTargets.h"

#include <QCoreApplication>
#include <QCoroFuture>
#include <QPointer>
#include <QTimer>

namespace kestrowind {

HelperClient::HelperClient(Environment environment)
    : m_environment(std::move(environment)) {
    refreshInstallState();
}

HelperClient::~HelperClient() {
    m_connection.reset();
    for (const auto& pending : m_pending) {
        if (const auto call = pending.lock())
            call->giveUp();
    }
}

void HelperClient::setState(HelperState state) {
    if (assignIfChanged(m_state, state))
        Q_EMIT stateChanged();
}

void HelperClient::setLastStatus(const std::optional<HelperStatus>& status) {
    if (assignIfChanged(m_lastStatus, status))
        Q_EMIT lastStatusChanged();
}

void HelperClient::refreshInstallState() {
    const SystemInformation& files = m_environment.information;
    if (files.fileExists(QString::fromLatin1(HelperConstants::daemonPlistPath)) &&
        files.fileExists(QString::fromLatin1(HelperConstants::helperInstallPath))) {
        if (m_state == HelperState::notInstalled)
            setState(HelperState::installed);
        return;
    }
    m_connection.reset();
    setState(HelperState::notInstalled);
}

HelperConnection& HelperClient::connection() {
    if (m_connection)
        return *m_connection;
    m_connection =
        m_environment.makeConnection(QString::fromLatin1(HelperConstants::machServiceName));
    m_connection->setInvalidationHandler(
        [client = QPointer(this), invalidated = m_connection.get()] {
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [client, invalidated] {
                    // A newer connection is not the one that was lost.
                    if (client && client->m_connection.get() == invalidated)
                        client->m_connection.reset();
                },
                Qt::QueuedConnection);
        });
    return *m_connection;
}

HelperConnection::ErrorHandler HelperClient::errorHandler() {
    // The call itself is left to its time-out: only the state learns of the error here.
    return [client = QPointer(this)](const QString& description) {
        qCCritical(helperClientLog).noquote() << "XPC error:" << description;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [client] {
                if (client && client->m_state == HelperState::installed)
                    client->setState(HelperState::unreachable);
            },
            Qt::QueuedConnection);
    };
}

template <class Value>
QCoro::Task<std::optional<Value>> HelperClient::call(Send<Value> send) {
    if (m_state == HelperState::notInstalled)
        co_return std::nullopt;

    const auto pending = std::make_shared<PendingReply<Value>>();
    std::erase_if(m_pending, [](const auto& earlier) { return earlier.expired(); });
    m_pending.push_back(pending);

    QTimer timeout;
    timeout.setSingleShot(true);
    timeout.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timeout, &QTimer::timeout, &timeout, [pending] { pending->giveUp(); });
    timeout.start(m_environment.callTimeout);

    send(
        connection(), [pending](Value value) { pending->complete(std::move(value)); },
        errorHandler());
    // The client may be gone when this goes on: nothing of it is touched any more.
    co_return co_await pending->future();
}

QCoro::Task<std::optional<HelperControlling::Targets>> HelperClient::setTargets(Targets targets) {
    // Named, because GCC 12 destroys a temporary twice that is converted inside an awaited call.
    const Send<Targets> send = [targets = std::move(targets)](HelperConnection& helper, auto reply,
                                                              auto error) {
        helper.setTargets(targets, std::move(reply), std::move(error));
    };
    auto applied = co_await call<Targets>(send);
    if (applied) {
        if (const auto check = checkFanSpeeds(*applied); !check) {
            qCCritical(helperClientLog) << "implausible reply:" << check.error().c_str();
            co_return std::nullopt;
        }
    }
    co_return applied;
}

QCoro::Task<void> HelperClient::releaseControl() {
    co_await call<Done>([](HelperConnection& helper, auto reply, auto error) {
        helper.releaseControl([reply = std::move(reply)] { reply(Done()); }, std::move(error));
    });
}

QCoro::Task<void> HelperClient::shutDownDaemon() {
    co_await call<Done>([](HelperConnection& helper, auto reply, auto error) {
        helper.shutDown([reply = std::move(reply)] { reply(Done()); }, std::move(error));
    });
}

QCoro::Task<std::optional<HelperStatus>> HelperClient::fetchStatus() {
    const QPointer<HelperClient> self(this);
    using Document = std::optional<QByteArray>;
    const auto document =
        co_await call<Document>([](HelperConnection& helper, auto reply, auto error) {
            helper.status(std::move(reply), std::move(error));
        });
    if (!self || !document || !*document)
        co_return std::nullopt;
    const QByteArray& bytes = **document;
    const auto status = decodeHelperStatus(
        std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (status)
        self->takeStatus(*status);
    co_return status;
}

void HelperClient::takeStatus(const HelperStatus& status) {
    // The numbers move with every sample: only what people are told about counts as a change.
    const bool moved = !m_lastStatus || m_lastStatus->phase != status.phase ||
                       m_lastStatus->lastError != status.lastError ||
                       m_lastStatus->version != status.version;
    if (moved)
        setLastStatus(status);
    setState(HelperState::installed);
}

QCoro::Task<std::expected<void, InstallError>>
HelperClient::runWithAdminPrivileges(QString shellScript) {
    using Outcome = std::expected<void, InstallError>;
    const ScriptOutcome outcome = co_await m_environment.scriptRunner.run(
        HelperInstallation::withAdministratorPrivileges(std::move(shellScript)));
    switch (outcome.kind) {
    case ScriptOutcome::Kind::succeeded:
        co_return Outcome();
    case ScriptOutcome::Kind::failed:
        co_return std::unexpected(
            InstallError{InstallError::Kind::adminScriptFailed, outcome.message});
    case ScriptOutcome::Kind::notStarted:
        co_return std::unexpected(InstallError{InstallError::Kind::launchFailed, outcome.message});
    }
    Q_UNREACHABLE();
}

QCoro::Task<std::expected<void, InstallError>> HelperClient::install() {
    const QPointer<HelperClient> self(this);
    const SystemInformation& bundle = m_environment.information;
    const auto executable = bundle.bundleResource(HelperInstallation::executableResource());
    const auto jobDescription = bundle.bundleResource(HelperInstallation::jobDescriptionResource());
    if (!executable || !jobDescription)
        co_return std::unexpected(InstallError{InstallError::Kind::resourcesMissing});
    auto outcome = co_await runWithAdminPrivileges(
        HelperInstallation::installScript(*executable, *jobDescription));
    if (!outcome || !self)
        co_return outcome;
    self->refreshInstallState();
    self->setState(HelperState::installed);
    co_await self->fetchStatus();
    co_return outcome;
}

QCoro::Task<void> HelperClient::uninstall() {
    const QPointer<HelperClient> self(this);
    co_await call<bool>([](HelperConnection& helper, auto reply, auto error) {
        helper.uninstall(std::move(reply), std::move(error));
    });
    if (!self)
        co_return;
    const auto removed = co_await self->runWithAdminPrivileges(HelperInstallation::removalScript());
    if (!removed)
        qCDebug(helperClientLog) << "removal script:" << removed.error().message;
    if (!self)
        co_return;
    self->m_connection.reset();
    self->setLastStatus(std::nullopt);
    self->refreshInstallState();
}

} // namespace kestrowind
