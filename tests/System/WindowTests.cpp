#include "System/RunningApp.h"

#include <QFile>
#include <QProcess>

#include <unistd.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nlohmann::json;

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
    void click(const QString& window, int x, int y) const {
        tool({u"mousemove"_s, u"--window"_s, window, QString::number(x), QString::number(y)});
        tool({u"click"_s, u"1"_s});
    }

private:
    int m_number;
    QProcess m_server;
    bool m_isUp = false;
};

TEST(Window, AClickOnAPillDrivesTheFans) {
    const VirtualScreen screen;
    ASSERT_TRUE(screen.isUp());
    const BootedMac mac(
        {u"--installed"_s, u"--load"_s, u"90%"_s, u"--profile"_s, u"desktop-1fan"_s});
    RunningApp app(mac, {}, screen.display());
    QString window;
    ASSERT_TRUE(waitUntil([&] { return !(window = screen.visibleWindow()).isEmpty(); }));
    ASSERT_TRUE(app.waitFor([](const json& reading) { return reading["preset"].is_null(); }));

    // The third of the three pills, right of the window's middle. A window that still moves into
    // its place may make the first click miss.
    const auto isFullSpeed = [](const json& reading) { return reading["preset"] == "Full Speed"; };
    bool didActivate = false;
    for (int attempt = 0; attempt < 3 && !didActivate; ++attempt) {
        screen.click(window, 820 / 2 + 118, 69);
        didActivate = app.waitFor(isFullSpeed, 4s);
    }
    ASSERT_TRUE(didActivate);
    ASSERT_TRUE(app.waitFor([](const json& reading) {
        return reading["phase"] == "controlling" &&
               reading["fans"][0]["actualRPM"] > 0.95 * reading["fans"][0]["maxRPM"].get<double>();
    }));

    // Closed, it lives on; the quit command gives the fans back.
    screen.tool({u"key"_s, u"--window"_s, window, u"ctrl+w"_s});
    EXPECT_TRUE(waitUntil([&] { return screen.visibleWindow().isEmpty(); }));
    EXPECT_TRUE(app.waitFor([](const json& reading) { return reading["isOverriding"] == true; }));
    app.send(SIGTERM);
    EXPECT_EQ(app.waitForEnd(3s), 0);
    FanModes modes(mac);
    EXPECT_TRUE(modes.areAllSystem());
}

TEST(Window, StaysHiddenOnlyWhereThereIsATray) {
    const VirtualScreen screen;
    const BootedMac mac({u"--profile"_s, u"fanless"_s});
    RunningApp app(mac, {u"-StartHidden"_s, u"YES"_s}, screen.display());
    ASSERT_TRUE(app.waitFor([](const json&) { return true; }));
    EXPECT_TRUE(screen.visibleWindow().isEmpty()) << "a tray may still come";
    EXPECT_TRUE(waitUntil([&] { return !screen.visibleWindow().isEmpty(); }));
}

} // namespace
} // namespace kestrowind
