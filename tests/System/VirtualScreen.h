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
    VirtualScreen()
        : m_number(100 + static_cast<int>(::getpid() % 10'000)) {
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
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DISPLAY"_s, display());
        process.setProcessEnvironment(environment);
        process.start(u"xdotool"_s, arguments);
        process.waitForFinished();
        return process.exitCode() == 0
                   ? QString::fromLatin1(process.readAllStandardOutput()).trimmed()
                   : QString();
    }
    [[nodiscard]] QString visibleWindow() const {
        return tool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^Kestrowind$"_s});
    }
    /// In the window's coordinates, points.
    void movePointer(const QString& window, int x, int y) const {
        tool({u"mousemove"_s, u"--window"_s, window, QString::number(x), QString::number(y)});
    }
    void click(const QString& window, int x, int y) const {
        movePointer(window, x, y);
        tool({u"click"_s, u"1"_s});
    }
    /// Takes what lies at one point to another, as a hand does: by steps.
    void drag(const QString& window, QPoint from, QPoint to) const {
        movePointer(window, from.x(), from.y());
        tool({u"mousedown"_s, u"1"_s});
        constexpr int steps = 12;
        for (int step = 1; step <= steps; ++step) {
            const QPoint at = from + (to - from) * step / steps;
            movePointer(window, at.x(), at.y());
        }
        tool({u"mouseup"_s, u"1"_s});
    }
    /// A window that still moves into its place may make a first click miss.
    [[nodiscard]] bool clickUntil(const QString& window, QPoint at,
                                  const std::function<bool()>& condition) const {
        for (int attempt = 0; attempt < 3; ++attempt) {
            click(window, at.x(), at.y());
            if (waitUntil(condition, std::chrono::seconds(4)))
                return true;
        }
        return false;
    }

private:
    int m_number;
    QProcess m_server;
    bool m_isUp = false;
};

/// The application with its window on a screen of its own.
class ShownApp : public testing::Test {
protected:
    explicit ShownApp(const QStringList& macOptions)
        : mac(macOptions) {}

    void SetUp() override {
        ASSERT_TRUE(screen.isUp());
        ASSERT_TRUE(mac.isUp());
    }
    /// Starts it, anew if need be, in the same home.
    void open(const QStringList& arguments = {}) {
        app = std::make_unique<RunningApp>(mac, arguments, screen.display(), home.path());
        ASSERT_TRUE(waitUntil([this] { return !(window = screen.visibleWindow()).isEmpty(); }));
        ASSERT_TRUE(app->waitFor([](const nlohmann::json&) { return true; }));
    }

    const VirtualScreen screen;
    const BootedMac mac;
    const QTemporaryDir home;
    std::unique_ptr<RunningApp> app;
    QString window;
};

} // namespace kestrowind
