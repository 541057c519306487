#pragma once

#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/HelperShared/Linux/HelperWire.h"
#include "Shared/SMCKit/SMCConnection.h"
#include "Simulator/Link/SMCLink.h"
#include "Simulator/Link/SimulatedMac.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <functional>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <thread>

namespace kestrowind {

using namespace Qt::StringLiterals;

/// True as soon as the condition is; false when it has not become so for long.
inline bool waitUntil(const std::function<bool()>& condition,
                      std::chrono::milliseconds limit = std::chrono::seconds(8)) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

/// What a program that was run to its end left behind.
struct Outcome {
    int status = -1;
    std::string output = {};
    std::string errors = {};
};

inline Outcome runProgram(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(20'000))
        return {.errors = process.errorString().toStdString()};
    // A program that a signal ended has no status of its own.
    const bool exited = process.exitStatus() == QProcess::NormalExit;
    return {.status = exited ? process.exitCode() : -1,
            .output = process.readAllStandardOutput().toStdString(),
            .errors = process.readAllStandardError().toStdString()};
}

inline Outcome runSimulator(const QStringList& arguments) {
    return runProgram(QStringLiteral(KESTROWIND_SIMULATOR), arguments);
}

/// A simulated Mac as a process, in a folder of its own, whose name is as awkward as one can be.
class BootedMac {
public:
    explicit BootedMac(const QStringList& options) {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(KESTROWIND_SIMULATOR),
                        QStringList{u"--root"_s, m_folder.path() + u'/'} + options);
        m_isUp = waitUntil([this] { return control("status").status == 0; });
        EXPECT_TRUE(m_isUp) << "the machine does not boot";
    }
    ~BootedMac() {
        m_process.terminate();
        m_process.waitForFinished();
    }
    BootedMac(const BootedMac&) = delete;
    BootedMac& operator=(const BootedMac&) = delete;

    [[nodiscard]] bool isUp() const { return m_isUp; }
    [[nodiscard]] QProcess& process() { return m_process; }
    [[nodiscard]] std::filesystem::path root() const { return m_folder.path().toStdString(); }

    /// The words of a command, parted by single blanks.
    Outcome control(const char* command) const {
        return control(QString::fromLatin1(command).split(u' '));
    }
    Outcome control(const QStringList& words) const {
        return runSimulator(
            QStringList{u"ctl"_s, u"--root"_s, QDir().relativeFilePath(m_folder.path())} + words);
    }
    [[nodiscard]] nlohmann::json status() const {
        return nlohmann::json::parse(control("status").output);
    }
    [[nodiscard]] SMCResult<std::unique_ptr<SMCConnection>> openSMC() const {
        return SMCConnection::open(std::make_shared<SMCLink>(SimulatedMac::smcSocket(root())));
    }

private:
    QTemporaryDir m_folder{QDir::tempPath() + u"/ä b'%41#,;=XXXXXX"_s};
    QProcess m_process;
    bool m_isUp = false;
};

/// A client of the helper, as the application is one.
class HelperCaller {
public:
    HelperCaller(const BootedMac& mac, const QString& name)
        : m_name(name)
        , m_connection(QDBusConnection::connectToPeer(address(mac), name)) {}
    ~HelperCaller() { hangUp(); }
    HelperCaller(const HelperCaller&) = delete;
    HelperCaller& operator=(const HelperCaller&) = delete;

    void hangUp() {
        // The connection closes with the last object that stands for it.
        m_connection = QDBusConnection(QString());
        QDBusConnection::disconnectFromPeer(m_name);
    }
    [[nodiscard]] bool isConnected() const { return m_connection.isConnected(); }

    [[nodiscard]] static QString address(const BootedMac& mac) {
        return QString::fromStdString(HelperWire::busAddress(
            SimulatedMac::serviceSocket(mac.root(), HelperConstants::machServiceName)));
    }

    [[nodiscard]] QDBusMessage call(const QString& method, const QVariantList& arguments = {},
                                    int patienceMilliseconds = 5'000) {
        auto message =
            QDBusMessage::createMethodCall(QString(), QLatin1StringView(HelperWire::objectPath),
                                           QLatin1StringView(HelperWire::interfaceName), method);
        message.setArguments(arguments);
        return m_connection.call(message, QDBus::Block, patienceMilliseconds);
    }
    [[nodiscard]] nlohmann::json status() {
        const QDBusReply<QByteArray> reply = call(u"Status"_s);
        EXPECT_TRUE(reply.isValid()) << reply.error().message().toStdString();
        return nlohmann::json::parse(reply.value().toStdString(), nullptr, false);
    }

private:
    QString m_name;
    QDBusConnection m_connection;
};

/// A machine whose only fan is held by a caller.
class HeldFan : public testing::Test {
protected:
    void SetUp() override {
        const auto reply = holder.call(u"SetTargets"_s, {QVariant::fromValue(QList<double>{2500})});
        ASSERT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
        ASSERT_EQ(smc->readUInt8("F0md"), 1);
    }

    const BootedMac mac{{u"--installed"_s, u"--profile"_s, u"desktop-1fan"_s}};
    HelperCaller holder{mac, u"holder"_s};
    std::unique_ptr<SMCConnection> smc = mac.openSMC().value();
};

} // namespace kestrowind
