#include "Simulator/Program/ControlClient.h"

#include "Simulator/Link/SimulatedMac.h"

#include <QLocalSocket>

#include <cstdio>
#include <expected>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

using Json = nlohmann::json;

// Longer than the longest that a machine waits for anything.
constexpr int patienceMilliseconds = 10'000;

struct Request {
    std::string root;
    QStringList words;
};

std::expected<Request, std::string> parse(QStringList arguments) {
    Request request;
    if (const auto root = SimulatedMac::root())
        request.root = root->string();
    if (!arguments.isEmpty() && arguments.constFirst() == "--root"_L1) {
        if (arguments.size() < 2)
            return std::unexpected("--root needs a folder");
        request.root = arguments.at(1).toStdString();
        arguments.remove(0, 2);
    }
    if (request.root.empty())
        return std::unexpected("which machine? Give --root DIR");
    if (arguments.isEmpty())
        return std::unexpected("what is to be done? --help lists the commands");
    request.words = arguments;
    return request;
}

std::expected<Json, std::string> ask(const Request& request) {
    const auto path = SimulatedMac::controlSocket(request.root).string();
    QLocalSocket socket;
    socket.connectToServer(QString::fromStdString(path));
    if (!socket.waitForConnected(patienceMilliseconds))
        return std::unexpected("no machine is running in " + request.root + " (" +
                               socket.errorString().toStdString() + ")");
    Json words = Json::array();
    for (const QString& word : request.words)
        words.push_back(word.toStdString());
    socket.write(QByteArray::fromStdString(words.dump()) + '\n');
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(patienceMilliseconds))
            return std::unexpected("the machine does not answer (" +
                                   socket.errorString().toStdString() + ")");
    }
    const QByteArray line = socket.readLine();
    Json answer = Json::parse(line.begin(), line.end(), nullptr, false);
    if (!answer.is_object())
        return std::unexpected("the machine's answer is unreadable");
    if (const auto error = answer.find("error"); error != answer.end())
        return std::unexpected(error->is_string() ? error->get<std::string>() : error->dump());
    return answer.value("result", Json());
}

} // namespace

int runControlClient(const QStringList& arguments) {
    const auto request = parse(arguments);
    const auto answer = request ? ask(*request) : std::unexpected(request.error());
    if (!answer) {
        std::fprintf(stderr, "kestrowind-simulator ctl: %s\n", answer.error().c_str());
        return 1;
    }
    if (!answer->is_null())
        std::printf("%s\n", answer->dump(2).c_str());
    return 0;
}

} // namespace kestrowind
