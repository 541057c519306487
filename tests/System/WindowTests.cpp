#include "System/RunningApp.h"
#include "System/VirtualScreen.h"

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nlohmann::json;

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
