#include "System/VirtualScreen.h"

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

// Where to click, in the window as it opens.
constexpr QPoint settingsSegment(573, 27);
constexpr QPoint fullSpeedPill(528, 69);
constexpr QPoint installButton(729, 200);
constexpr QPoint reinstallButton(621, 200);
constexpr QPoint uninstallButton(720, 200);

/// The application on a Mac that has never seen it.
class FirstRunTest : public ShownApp {
protected:
    FirstRunTest()
        : ShownApp({u"--load"_s, u"90%"_s, u"--profile"_s, u"desktop-1fan"_s}) {}

    void SetUp() override {
        ShownApp::SetUp();
        open();
        ASSERT_TRUE(app->waitFor(helperIs("notInstalled")));
    }
    static std::function<bool(const nlohmann::json&)> helperIs(const char* state) {
        return [state](const nlohmann::json& reading) { return reading["helperState"] == state; };
    }
    void password(const char* answer) const {
        ASSERT_EQ(mac.control({u"password"_s, QString::fromLatin1(answer)}).status, 0);
    }
    [[nodiscard]] bool isWaitingForPassword() const {
        return mac.status()["openPasswordDialogs"] == 1;
    }
    /// Clicks until the password dialog opens, and answers it.
    void clickAndAnswer(QPoint button, const char* answer) {
        password("hang");
        ASSERT_TRUE(screen.clickUntil(window, button, [this] { return isWaitingForPassword(); }));
        password(answer);
    }
    [[nodiscard]] bool areFilesThere() const {
        return fs::exists(program) &&
               fs::exists(SimulatedMac::systemPath(mac.root(), HelperConstants::daemonPlistPath));
    }

    const fs::path program =
        SimulatedMac::systemPath(mac.root(), HelperConstants::helperInstallPath);
};

TEST_F(FirstRunTest, InstallsDrivesTheFansReinstallsAndRemovesAllByClicking) {
    screen.click(window, settingsSegment.x(), settingsSegment.y());
    password("hang");
    // The first click may have come too early for the section.
    ASSERT_TRUE(screen.clickUntil(window, installButton, [this] {
        screen.click(window, settingsSegment.x(), settingsSegment.y());
        return isWaitingForPassword();
    }));
    password("refuse");
    ASSERT_TRUE(app->waitFor(helperIs("notInstalled")));
    EXPECT_FALSE(areFilesThere());

    clickAndAnswer(installButton, "grant");
    ASSERT_TRUE(app->waitFor(helperIs("installed")));
    EXPECT_TRUE(areFilesThere());
    const auto first = mac.status()["helper"]["pid"].get<pid_t>();
    EXPECT_EQ(fs::read_symlink("/proc/" + std::to_string(first) + "/exe"), program);

    const auto isControlling = [](const nlohmann::json& reading) {
        return reading["phase"] == "controlling" && reading["isOverriding"] == true;
    };
    ASSERT_TRUE(screen.clickUntil(window, fullSpeedPill, [&] {
        return app->waitFor(isControlling, std::chrono::seconds(3));
    }));

    clickAndAnswer(reinstallButton, "grant");
    ASSERT_TRUE(waitUntil([&] {
        const auto pid = mac.status()["helper"]["pid"];
        return pid.is_number() && pid != first;
    }));
    ASSERT_TRUE(app->waitFor(isControlling)) << "the new helper takes the fans again";
    FanModes modes(mac);
    EXPECT_TRUE(waitUntil([&] { return modes.areAllManual(); }));

    clickAndAnswer(uninstallButton, "grant");
    ASSERT_TRUE(app->waitFor(helperIs("notInstalled")));
    EXPECT_FALSE(fs::exists(program));
    EXPECT_EQ(mac.status()["helper"]["bootstrapped"], false);
    EXPECT_TRUE(waitUntil([&] { return modes.areAllSystem(); }));
}

} // namespace
} // namespace kestrowind
