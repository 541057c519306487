#include "Core/PresetCoding.h"
#include "Core/PresetSlot.h"
#include "System/VirtualScreen.h"

#include <cmath>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nlohmann::json;
namespace fs = std::filesystem;

/// The application with its window on a screen of its own, on a Mac that has never seen it.
class Window : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(screen.isUp());
        ASSERT_TRUE(mac.isUp());
    }
    /// Anew if need be, in the same home.
    void start(const QStringList& arguments) {
        app = std::make_unique<RunningApp>(mac, arguments, screen.display(), home.path());
        ASSERT_TRUE(app->waitFor([](const json&) { return true; }));
    }
    [[nodiscard]] bool isOpen() {
        return waitUntil([this] { return !(window = screen.visibleWindow()).isEmpty(); });
    }
    void quit() {
        app->send(SIGTERM);
        EXPECT_EQ(app->waitForEnd(4s), 0);
    }
    /// A window that still moves into its place may make the hand miss at first.
    [[nodiscard]] bool dragUntil(QPoint from, QPoint to,
                                 const std::function<bool()>& condition) const {
        for (int attempt = 0; attempt < 3; ++attempt) {
            screen.drag(window, from, to);
            if (waitUntil(condition, 4s))
                return true;
        }
        return false;
    }
    [[nodiscard]] bool clickUntil(QPoint at, const std::function<bool()>& condition) const {
        return dragUntil(at, at, condition);
    }

    [[nodiscard]] bool activates(QPoint at, const char* preset) const {
        return clickUntil(at, [&] {
            return app->waitFor([&](const json& reading) { return reading["preset"] == preset; },
                                4s);
        });
    }
    void password(const char* answer) const {
        ASSERT_EQ(mac.control({u"password"_s, QString::fromLatin1(answer)}).status, 0);
    }
    /// Clicks until the password dialog opens, and answers it.
    void clickAndAnswer(QPoint button, const char* answer) const {
        password("hang");
        ASSERT_TRUE(
            clickUntil(button, [this] { return mac.status()["openPasswordDialogs"] == 1; }));
        password(answer);
    }
    [[nodiscard]] bool helperIs(const char* state) const {
        return app->waitFor([&](const json& reading) { return reading["helperState"] == state; });
    }

    /// Below data/Kestrowind or config/Kestrowind.
    [[nodiscard]] QByteArray fileContent(const QString& name) const {
        QFile file(home.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// The user's own, as they are saved.
    [[nodiscard]] QList<FanPreset> presets() const {
        return decodePresets(fileContent(u"data/Kestrowind/presets.json"_s))
            .value_or(QList<FanPreset>());
    }

    const VirtualScreen screen;
    const BootedMac mac{{u"--load"_s, u"90%"_s, u"--profile"_s, u"desktop-1fan"_s}};
    const QTemporaryDir home;
    std::unique_ptr<RunningApp> app;
    QString window;
};

TEST_F(Window, InstallsAndRemovesTheHelperAndDrivesByACurveThatWasDrawnInIt) {
    start({u"-InitialSection"_s, u"settings"_s, u"-StartHidden"_s, u"YES"_s});
    EXPECT_TRUE(screen.visibleWindow().isEmpty()) << "a tray may still come";
    ASSERT_TRUE(isOpen());
    const fs::path program =
        SimulatedMac::systemPath(mac.root(), HelperConstants::helperInstallPath);
    const fs::path job = SimulatedMac::systemPath(mac.root(), HelperConstants::daemonPlistPath);
    clickAndAnswer({729, 200}, "refuse");
    ASSERT_TRUE(helperIs("notInstalled"));
    EXPECT_FALSE(fs::exists(program) || fs::exists(job));
    clickAndAnswer({729, 200}, "grant");
    ASSERT_TRUE(helperIs("installed"));
    EXPECT_TRUE(fs::exists(program) && fs::exists(job));
    const auto helper = [this] { return mac.status()["helper"]["pid"]; };
    const json first = helper();
    EXPECT_EQ(fs::read_symlink("/proc/" + std::to_string(first.get<pid_t>()) + "/exe"), program);

    FanModes modes(mac);
    ASSERT_TRUE(activates({410, 69}, "Cool")) << "by the second pill";
    ASSERT_TRUE(app->waitForPhase("controlling"));
    clickAndAnswer({621, 200}, "grant");
    ASSERT_TRUE(waitUntil([&] { return helper().is_number() && helper() != first; }));
    ASSERT_TRUE(app->waitForPhase("controlling")) << "the new helper takes the fans again";
    EXPECT_TRUE(waitUntil([&] { return modes.areAllManual(); }));

    clickAndAnswer({720, 200}, "grant");
    ASSERT_TRUE(helperIs("notInstalled"));
    EXPECT_FALSE(fs::exists(program));
    EXPECT_EQ(mac.status()["helper"]["bootstrapped"], false);
    EXPECT_TRUE(waitUntil([&] { return modes.areAllSystem(); }));
    clickAndAnswer({729, 200}, "grant");
    ASSERT_TRUE(helperIs("installed"));
    quit();

    const FanCurve cool = FanPreset::builtIns(1).first().curves.first();
    start({u"-InitialSection"_s, u"curves"_s});
    ASSERT_TRUE(isOpen());
    // Customize.
    ASSERT_TRUE(clickUntil({741, 216}, [this] { return presets().size() == 1; }));
    const auto copied = presets();
    // The plot is 700 by 296 at (74, 288): from 64 degrees and 49 percent up to 90.
    ASSERT_TRUE(dragUntil({416, 439}, {416, 318}, [&] { return presets() != copied; }));
    FanCurve drawn = cool;
    drawn.move(3, {64, 90});
    ASSERT_EQ(presets().value(0).curves, QList<FanCurve>{drawn}) << "once for the one fan";
    ASSERT_TRUE(activates({615, 69}, "Cool Copy")) << "by the fourth pill";
    const auto asksForTheDrawnCurve = [&](const json& reading) {
        if (reading["preset"] != "Cool Copy" || reading["phase"] != "controlling")
            return false;
        const double temperature = reading["smoothedTemperature"];
        const double percent = reading["requestedPercents"][0];
        return std::abs(percent - drawn.percent(temperature)) < 0.01 &&
               percent > cool.percent(temperature) + 5;
    };
    EXPECT_TRUE(app->waitFor(
        [&](const json& reading) {
            const json& fan = reading["fans"][0];
            const json& targets = reading["effectiveTargets"];
            return asksForTheDrawnCurve(reading) && !targets.empty() &&
                   std::abs(fan["actualRPM"].get<double>() - targets[0].get<double>()) <
                       0.05 * fan["maxRPM"].get<double>();
        },
        40s))
        << "the fan follows";

    // Closed, it lives on; the quit command gives the fans back.
    screen.tool({u"key"_s, u"--window"_s, window, u"ctrl+w"_s});
    EXPECT_TRUE(waitUntil([this] { return screen.visibleWindow().isEmpty(); }));
    EXPECT_TRUE(app->waitFor([](const json& reading) { return reading["isOverriding"] == true; }));
    quit();
    EXPECT_TRUE(modes.areAllSystem());
    start({});
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(app->waitFor(asksForTheDrawnCurve, 40s));
}

TEST_F(Window, ReordersItsCardsByDragging) {
    start({u"-InitialSection"_s, u"presets"_s});
    ASSERT_TRUE(isOpen());
    const QByteArray order =
        "presetSlotOrder=" + PresetSlot::preset(FanPreset::fullSpeedID).id().toLatin1();
    // The middles of the third and the first card of a window that is as wide as it opens.
    EXPECT_TRUE(dragUntil({672, 274}, {146, 274}, [&] {
        return fileContent(u"config/Kestrowind/Kestrowind.ini"_s).contains(order);
    }));
}

} // namespace
} // namespace kestrowind
