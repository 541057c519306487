#include "Core/PresetCoding.h"
#include "System/RunningApp.h"
#include "System/VirtualScreen.h"

#include <cmath>
#include <sys/stat.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nlohmann::json;

/// The file of the presets in a home. Every write replaces it, so that its number is another.
class PresetsFile {
public:
    explicit PresetsFile(const QString& home)
        : m_path(home + u"/data/Kestrowind/presets.json"_s) {}

    /// 0 while there is none.
    [[nodiscard]] ino_t number() const {
        struct stat status = {};
        return ::stat(qPrintable(m_path), &status) == 0 ? status.st_ino : 0;
    }
    [[nodiscard]] QByteArray content() const {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] FanPreset onlyPreset() const {
        const auto presets = decodePresets(content());
        return presets && presets->size() == 1 ? presets->first() : FanPreset();
    }

private:
    QString m_path;
};

TEST(Curves, DrawnByThePointerDriveTheFansAndSurviveARestart) {
    const VirtualScreen screen;
    ASSERT_TRUE(screen.isUp());
    const BootedMac mac(
        {u"--installed"_s, u"--load"_s, u"90%"_s, u"--profile"_s, u"desktop-1fan"_s});
    const QTemporaryDir home;
    const PresetsFile file(home.path());
    const FanCurve cool = FanPreset::builtIns(1).first().curves.first();
    auto app = std::make_unique<RunningApp>(mac, QStringList{u"-InitialSection"_s, u"curves"_s},
                                            screen.display(), home.path());
    QString window;
    ASSERT_TRUE(waitUntil([&] { return !(window = screen.visibleWindow()).isEmpty(); }));
    ASSERT_TRUE(app->waitFor([](const json& reading) { return reading["preset"].is_null(); }));

    // Customize. A window that still moves into its place may make the first click miss.
    for (int attempt = 0; attempt < 3 && file.number() == 0; ++attempt) {
        screen.click(window, 741, 216);
        waitUntil([&] { return file.number() != 0; }, 3s);
    }
    ASSERT_EQ(file.onlyPreset().curves, QList<FanCurve>(2, cool)) << "as built in: for two fans";
    // The plot is 700 by 296 at (74, 221): from 64 degrees and 49 percent up to 90.
    const ino_t copied = file.number();
    for (int attempt = 0; attempt < 3 && file.number() == copied; ++attempt) {
        screen.movePointer(window, 416, 372);
        screen.tool({u"mousedown"_s, u"1"_s});
        for (int y = 360; y > 251; y -= 12)
            screen.movePointer(window, 416, y);
        screen.movePointer(window, 416, 251);
        ASSERT_TRUE(app->waitFor([](const json&) { return true; }));
        EXPECT_EQ(file.number(), copied) << "nothing is saved while dragging";
        screen.tool({u"mouseup"_s, u"1"_s});
        waitUntil([&] { return file.number() != copied; }, 3s);
    }
    ASSERT_NE(file.number(), copied);
    const ino_t edited = file.number();
    const FanCurve drawn = file.onlyPreset().curves.value(0);
    FanCurve expected = cool;
    expected.move(3, {64, 90});
    ASSERT_EQ(drawn, expected);

    const auto followsTheDrawnCurve = [&](const json& reading) {
        if (reading["preset"] != "Cool Copy" || reading["phase"] != "controlling")
            return false;
        const double temperature = reading["smoothedTemperature"];
        const double percent = reading["requestedPercents"][0];
        const json& fan = reading["fans"][0];
        const json& targets = reading["effectiveTargets"];
        return std::abs(percent - drawn.percent(temperature)) < 0.01 &&
               percent > cool.percent(temperature) + 5 && !targets.empty() &&
               std::abs(fan["actualRPM"].get<double>() - targets[0].get<double>()) <
                   0.05 * fan["maxRPM"].get<double>();
    };
    bool didActivate = false;
    for (int attempt = 0; attempt < 3 && !didActivate; ++attempt) {
        screen.click(window, 615, 69); // the fourth pill
        didActivate =
            app->waitFor([](const json& reading) { return reading["preset"] == "Cool Copy"; }, 4s);
    }
    ASSERT_TRUE(didActivate);
    EXPECT_TRUE(app->waitFor(followsTheDrawnCurve, 40s));
    EXPECT_EQ(file.number(), edited) << "one edit, one write";

    app->send(SIGTERM);
    EXPECT_EQ(app->waitForEnd(4s), 0);
    app = std::make_unique<RunningApp>(mac, QStringList{}, screen.display(), home.path());
    EXPECT_TRUE(app->waitFor(followsTheDrawnCurve, 40s));
    EXPECT_EQ(file.onlyPreset().curves, QList<FanCurve>{drawn}) << "once for the one fan";
}

} // namespace
} // namespace kestrowind
