#pragma once

#include "Simulator/BootedMac.h"

#include <QFile>
#include <QProcess>

#include <unistd.h>

namespace kestrowind {

/// An X server of its own, with a pointer that clicks.
class VirtualScreen {
public:
    /// Numbered after this process: servers that look for a free number at once take the same one.
    VirtualScreen()
        : m_number(100 + static_cast<int>(::getpid() % 10'000)) {
        m_server.start(QStringLiteral("Xvfb"),
                       {display(), QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("1280x1100x24"), QStringLiteral("-noreset"),
                        QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        m_isUp = waitUntil(
            [this] { return QFile::exists(QStringLiteral("/tmp/.X11-unix/X%1").arg(m_number)); });
    }
    ~VirtualScreen() {
        m_server.terminate();
        m_server.waitForFinished();
    }
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

    [[nodiscard]] bool isUp() const { return m_isUp; }
    [[nodiscard]] QString display() const { return QLatin1Char(':') + QString::number(m_number); }

    /// What xdotool prints; nothing when it fails.
    QString tool(const QStringList& arguments) const {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), display());
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral("xdotool"), arguments);
        process.waitForFinished();
        return process.exitCode() == 0
                   ? QString::fromLatin1(process.readAllStandardOutput()).trimmed()
                   : QString();
    }
    [[nodiscard]] QString visibleWindow() const {
        return tool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                     QStringLiteral("--name"), QStringLiteral("^Kestrowind$")});
    }
    void point(const QString& window, int x, int y) const {
        tool({QStringLiteral("mousemove"), QStringLiteral("--window"), window, QString::number(x),
              QString::number(y)});
    }
    void click(const QString& window, int x, int y) const {
        point(window, x, y);
        tool({QStringLiteral("click"), QStringLiteral("1")});
    }

private:
    int m_number;
    QProcess m_server;
    bool m_isUp = false;
};

} // namespace kestrowind
