#include "Core/PresetCoding.h"
#include "Core/PresetSlot.h"
#include "System/VirtualScreen.h"

#include <cmath>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using nlohmann::json;

class Window : public ShownApp {
protected:
    Window()
        : ShownApp(quickMac) {}

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
    [[nodiscard]] QByteArray slotOrder() const {
        for (const QByteArray& line :
             fileContent(u"config/Kestrowind/Kestrowind.ini"_s).split('\n')) {
            if (line.startsWith("presetSlotOrder="))
                return line.mid(line.indexOf('=') + 1);
        }
        return {};
    }
    [[nodiscard]] bool dragUntil(QPoint from, QPoint to,
                                 const std::function<bool()>& condition) const {
        for (int attempt = 0; attempt < 3; ++attempt) {
            screen.drag(window, from, to);
            if (waitUntil(condition, 3s))
                return true;
        }
        return false;
    }
    [[nodiscard]] bool activates(QPoint at, const char* preset) const {
        return screen.clickUntil(window, at, [&] {
            return app->waitFor([&](const json& reading) { return reading["preset"] == preset; },
                                4s);
        });
    }
};

TEST_F(Window, DrivesTheFansByACurveThatWasDrawnInIt) {
    const FanCurve cool = FanPreset::builtIns(1).first().curves.first();
    open({u"-InitialSection"_s, u"curves"_s});
    // Customize.
    ASSERT_TRUE(screen.clickUntil(window, {741, 216}, [this] { return presets().size() == 1; }));
    const auto copied = presets();
    // The plot is 700 by 296 at (74, 288): from 64 degrees and 49 percent up to 90.
    ASSERT_TRUE(dragUntil({416, 439}, {416, 318}, [&] { return presets() != copied; }));
    FanCurve drawn = cool;
    drawn.move(3, {64, 90});
    ASSERT_EQ(presets().value(0).curves, QList<FanCurve>{drawn}) << "once for the one fan";

    const auto asksForTheDrawnCurve = [&](const json& reading) {
        if (reading["preset"] != "Cool Copy" || reading["phase"] != "controlling")
            return false;
        const double temperature = reading["smoothedTemperature"];
        const double percent = reading["requestedPercents"][0];
        return std::abs(percent - drawn.percent(temperature)) < 0.01 &&
               percent > cool.percent(temperature) + 5;
    };
    const auto followsTheDrawnCurve = [&](const json& reading) {
        const json& fan = reading["fans"][0];
        const json& targets = reading["effectiveTargets"];
        return asksForTheDrawnCurve(reading) && !targets.empty() &&
               std::abs(fan["actualRPM"].get<double>() - targets[0].get<double>()) <
                   0.05 * fan["maxRPM"].get<double>();
    };
    ASSERT_TRUE(activates({615, 69}, "Cool Copy")) << "by the fourth pill";
    EXPECT_TRUE(app->waitFor(followsTheDrawnCurve, 40s));

    // Closed, it lives on; the quit command gives the fans back.
    screen.tool({u"key"_s, u"--window"_s, window, u"ctrl+w"_s});
    EXPECT_TRUE(waitUntil([this] { return screen.visibleWindow().isEmpty(); }));
    EXPECT_TRUE(app->waitFor([](const json& reading) { return reading["isOverriding"] == true; }));
    app->send(SIGTERM);
    EXPECT_EQ(app->waitForEnd(4s), 0);
    EXPECT_TRUE(FanModes(mac).areAllSystem());
    open();
    EXPECT_TRUE(app->waitFor(asksForTheDrawnCurve, 40s));
}

TEST_F(Window, ReordersItsCardsByDragging) {
    open({u"-InitialSection"_s, u"presets"_s});
    const QByteArray fullSpeed = PresetSlot::preset(FanPreset::fullSpeedID).id().toLatin1();
    // The middles of the third and the first card of a window that is as wide as it opens.
    EXPECT_TRUE(dragUntil({672, 274}, {146, 274}, [&] {
        return slotOrder().startsWith(fullSpeed);
    })) << slotOrder().constData();
}

TEST_F(Window, StaysHiddenOnlyWhereThereIsATray) {
    RunningApp hidden(mac, {u"-StartHidden"_s, u"YES"_s}, screen.display());
    ASSERT_TRUE(hidden.waitFor([](const json&) { return true; }));
    EXPECT_TRUE(screen.visibleWindow().isEmpty()) << "a tray may still come";
    EXPECT_TRUE(waitUntil([this] { return !screen.visibleWindow().isEmpty(); }));
}

} // namespace
} // namespace kestrowind
