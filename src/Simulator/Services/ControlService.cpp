#include "Simulator/Services/ControlService.h"

#include "Simulator/Link/SimulatedMac.h"

#include <QLocalSocket>
#include <QPointer>
#include <QTimer>

#include <chrono>

namespace kestrowind {
namespace {

using Json = nlohmann::json;

constexpr qint64 longestLine = 64 * 1024;
// A client that has not said or taken all it wants by then is not one of ours.
constexpr std::chrono::seconds patience{10};
constexpr int mostClients = 32;

QByteArray answerLine(const MachineControl::Result& result) {
    const Json answer = result ? Json{{"result", *result}} : Json{{"error", result.error()}};
    return QByteArray::fromStdString(answer.dump(-1, ' ', false, Json::error_handler_t::replace) +
                                     "\n");
}

/// The words of a command; the error says what the line is instead.
std::expected<MachineControl::Words, std::string> parseWords(const QByteArray& line) {
    const Json json = Json::parse(line.begin(), line.end(), nullptr, false);
    if (json.is_discarded() || !json.is_array())
        return std::unexpected("a command is one line with a JSON array of texts");
    MachineControl::Words words;
    for (const Json& word : json) {
        if (!word.is_string())
            return std::unexpected("a command consists of texts only");
        words.push_back(word.get<std::string>());
    }
    return words;
}

} // namespace

ControlService::ControlService(MachineControl& control)
    : m_control(control) {
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(mostClients);
    QObject::connect(&m_server, &QLocalServer::newConnection, &m_server,
                     [this] { acceptClients(); });
}

std::expected<void, std::string> ControlService::listen(const std::filesystem::path& root) {
    const QString path = QString::fromStdString(SimulatedMac::controlSocket(root).string());
    QLocalServer::removeServer(path);
    if (!m_server.listen(path))
        return std::unexpected("cannot listen at " + path.toStdString() + ": " +
                               m_server.errorString().toStdString());
    return {};
}

void ControlService::acceptClients() {
    while (QLocalSocket* const client = m_server.nextPendingConnection()) {
        client->setReadBufferSize(longestLine);
        QObject::connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        auto* const limit = new QTimer(client);
        limit->setSingleShot(true);
        QObject::connect(limit, &QTimer::timeout, client, [client] { client->abort(); });
        limit->start(patience);
        QObject::connect(client, &QLocalSocket::readyRead, client,
                         [this, client, limit] { read(client, *limit); });
        read(client, *limit);
    }
}

void ControlService::read(QLocalSocket* client, QTimer& limit) {
    if (!client->canReadLine()) {
        if (client->bytesAvailable() >= longestLine)
            client->abort();
        return;
    }
    const auto words = parseWords(client->readLine());
    // One command a client: what else it sends is not read.
    QObject::disconnect(client, &QLocalSocket::readyRead, nullptr, nullptr);
    // How long the answer takes is not the client's fault.
    limit.stop();
    const auto answer = [caller = QPointer(client), &limit](const MachineControl::Result& result) {
        if (!caller)
            return;
        limit.start(patience);
        caller->write(answerLine(result));
        caller->disconnectFromServer();
    };
    if (words)
        m_control.execute(*words, answer);
    else
        answer(std::unexpected(words.error()));
}

} // namespace kestrowind
