#pragma once

#include "Simulator/BootedMac.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <nlohmann/json.hpp>
#include <vector>

namespace kestrowind {

using namespace Qt::StringLiterals;

/// A machine that needs no unlocking, so that control is quick.
inline const QStringList quickMac{u"--installed"_s, u"--load"_s, u"90%"_s, u"--profile"_s,
                                  u"desktop-1fan"_s};
inline const QStringList fullSpeed{u"-ActivatePreset"_s, u"Full Speed"_s};

/// The real application inside a booted Mac, printing its readings, with a home of its own unless
/// it is to find what another run left behind.
class RunningApp {
public:
    /// Without a display of its own it runs on the offscreen platform.
    RunningApp(const BootedMac& mac, const QStringList& arguments, const QString& display = {},
               const QString& home = {}) {
        const QDir folder(home.isEmpty() ? m_home.path() : home);
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(SimulatedMac::rootVariable),
                           QString::fromStdString(mac.root().string()));
        environment.insert(u"XDG_DATA_HOME"_s, folder.filePath(u"data"_s));
        environment.insert(u"XDG_CONFIG_HOME"_s, folder.filePath(u"config"_s));
        environment.insert(u"QT_QPA_PLATFORM"_s, display.isEmpty() ? u"offscreen"_s : u"xcb"_s);
        environment.insert(u"DISPLAY"_s, display);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(KESTROWIND_APPLICATION),
                        QStringList{u"-PrintReadings"_s, u"json"_s} + arguments);
        m_process.waitForStarted();
    }
    ~RunningApp() {
        m_process.kill();
        m_process.waitForFinished();
    }
    RunningApp(const RunningApp&) = delete;
    RunningApp& operator=(const RunningApp&) = delete;

    void send(int signalNumber) const {
        ::kill(static_cast<pid_t>(m_process.processId()), signalNumber);
    }
    /// The exit status; -1 when it is killed or does not end in time.
    int waitForEnd(std::chrono::milliseconds limit) {
        if (!m_process.waitForFinished(static_cast<int>(limit.count())) ||
            m_process.exitStatus() != QProcess::NormalExit)
            return -1;
        return m_process.exitCode();
    }

    /// Waits for a reading that satisfies a condition; all readings so far are kept.
    bool waitFor(const std::function<bool(const nlohmann::json&)>& condition,
                 std::chrono::milliseconds limit = std::chrono::seconds(15)) {
        return waitUntil(
            [&] {
                const std::size_t before = m_readings.size();
                takeReadings();
                return std::any_of(m_readings.begin() + static_cast<std::ptrdiff_t>(before),
                                   m_readings.end(), condition);
            },
            limit);
    }
    bool waitForPhase(const std::string& phase) {
        return waitFor([&](const nlohmann::json& reading) { return reading["phase"] == phase; });
    }
    [[nodiscard]] const std::vector<nlohmann::json>& readings() const { return m_readings; }

private:
    void takeReadings() {
        m_process.waitForReadyRead(1);
        while (m_process.canReadLine())
            m_readings.push_back(nlohmann::json::parse(m_process.readLine().toStdString()));
    }

    QTemporaryDir m_home;
    QProcess m_process;
    std::vector<nlohmann::json> m_readings;
};

/// Reads the mode keys themselves, fast enough to time what happens to the fans.
class FanModes {
public:
    explicit FanModes(const BootedMac& mac)
        : m_smc(std::move(*SMCConnection::open(
              std::make_shared<SMCLink>(SimulatedMac::smcSocket(mac.root()))))) {}

    [[nodiscard]] bool areAllManual() { return areAll(1); }
    [[nodiscard]] bool areAllSystem() { return areAll(0); }

private:
    bool areAll(std::uint8_t mode) {
        const auto fans = m_smc->readAllFans();
        return fans && !fans->empty() &&
               std::ranges::all_of(*fans, [mode](const auto& fan) { return fan.modeRaw == mode; });
    }

    std::unique_ptr<SMCConnection> m_smc;
};

} // namespace kestrowind
