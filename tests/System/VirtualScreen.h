#pragma once

#include "System/RunningApp.h"

#include <QFile>
#include <QPoint>

#include <unistd.h>

namespace kestrowind {

using namespace Qt::StringLiterals;

/// An X server of its own, with a pointer that clicks.
class VirtualScreen {
public:
    /// Numbered after this process: servers that look for a free number at once take the same one.
    VirtualScreen() {
        m_server.start(u"Xvfb"_s, {display(), u"-screen"_s, u"0"_s, u"1280x1100x24"_s,
                                   u"-noreset"_s, u"-nolisten"_s, u"tcp"_s});
        m_isUp = waitUntil([this] { return QFile::exists(u"/tmp/.X11-unix/X%1"_s.arg(m_number)); });
    }
    ~VirtualScreen() {
        m_server.terminate();
        m_server.waitForFinished();
    }
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

    [[nodiscard]] bool isUp() const { return m_isUp; }
    [[nodiscard]] QString display() const { return u':' + QString::number(m_number); }

    /// What xdotool prints; nothing when it fails.
    QString tool(const QStringList& arguments) const {
        const Outcome outcome =
            runProgram(u"env"_s, QStringList{u"DISPLAY="_s + display(), u"xdotool"_s} + arguments);
        return QString::fromStdString(outcome.output).trimmed();
    }
    [[nodiscard]] QString visibleWindow() const {
        return tool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^Kestrowind$"_s});
    }
    /// Presses the button at a point of the window, takes what lies there to another one, as a hand
    /// does: by steps, and lets go.
    void drag(const QString& window, QPoint from, QPoint to) const {
        constexpr int steps = 12;
        for (int step = 0; step <= steps; ++step) {
            const QPoint at = from + (to - from) * step / steps;
            tool({u"mousemove"_s, u"--window"_s, window, QString::number(at.x()),
                  QString::number(at.y())});
            if (step == 0)
                tool({u"mousedown"_s, u"1"_s});
        }
        tool({u"mouseup"_s, u"1"_s});
    }

private:
    int m_number = 100 + static_cast<int>(::getpid() % 10'000);
    QProcess m_server;
    bool m_isUp = false;
};

} // namespace kestrowind
