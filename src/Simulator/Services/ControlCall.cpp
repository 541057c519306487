#include "Simulator/Services/ControlCall.h"

#include "Simulator/Link/SimulatedMac.h"

#include <QLocalSocket>

namespace kestrowind {

using Json = nlohmann::json;

std::expected<Json, std::string> callControl(const std::filesystem::path& root,
                                             const std::vector<std::string>& words,
                                             std::chrono::milliseconds patience) {
    QLocalSocket socket;
    socket.connectToServer(QString::fromStdString(SimulatedMac::controlSocket(root).string()));
    if (!socket.waitForConnected(static_cast<int>(controlPatience.count())))
        return std::unexpected("no machine is running in " + root.string() + " (" +
                               socket.errorString().toStdString() + ")");
    socket.write(QByteArray::fromStdString(Json(words).dump()) + '\n');
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(static_cast<int>(patience.count())))
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

} // namespace kestrowind
