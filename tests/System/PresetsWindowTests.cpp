#include "System/RunningApp.h"
#include "System/VirtualScreen.h"

#include <QFile>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using nlohmann::json;

/// The presets file, and an empty list while there is none.
json presets(const RunningApp& app) {
    QFile file(app.file(u"data/Kestrowind/presets.json"_s));
    if (!file.open(QIODevice::ReadOnly))
        return json::array();
    return json::parse(file.readAll().toStdString());
}

std::string savedOrder(const RunningApp& app) {
    QFile file(app.file(u"config/Kestrowind/Kestrowind.ini"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("presetSlotOrder="))
            return line.mid(line.indexOf('=') + 1).toStdString();
    }
    return {};
}

/// The middle of a place in the grid of a window that is as wide as it opens.
QPoint place(int index) {
    constexpr int columns = 3;
    return {24 + index % columns * (245 + 18) + 122, 180 + index / columns * (188 + 18) + 94};
}

TEST(PresetsWindow, KeepsWhatIsMadeNamedDraggedAndDeleted) {
    const VirtualScreen screen;
    ASSERT_TRUE(screen.isUp());
    const BootedMac mac({u"--installed"_s, u"--load"_s, u"40%"_s});
    RunningApp app(mac, {u"-InitialSection"_s, u"presets"_s}, screen.display());
    QString window;
    ASSERT_TRUE(waitUntil([&] { return !(window = screen.visibleWindow()).isEmpty(); }));
    ASSERT_TRUE(app.waitFor([](const json&) { return true; }));

    // A window that still moves into its place may make the first click miss.
    const auto clickUntil = [&](QPoint at, const std::function<bool()>& condition) {
        for (int attempt = 0; attempt < 3; ++attempt) {
            screen.click(window, at.x(), at.y());
            if (waitUntil(condition, std::chrono::seconds(3)))
                return true;
        }
        return false;
    };
    ASSERT_TRUE(clickUntil(place(3), [&] { return presets(app).size() == 1; }));
    screen.type(u"Quiet night"_s);
    screen.key(u"Return"_s);
    ASSERT_TRUE(waitUntil([&] { return presets(app)[0]["name"] == "Quiet night"; }));
    const auto id = presets(app)[0]["id"].get<std::string>();
    ASSERT_TRUE(savedOrder(app).ends_with(id)) << savedOrder(app);

    // Onto the first card, whose place it takes.
    bool didMove = false;
    for (int attempt = 0; attempt < 3 && !didMove; ++attempt) {
        screen.drag(window, place(3), place(0));
        didMove =
            waitUntil([&] { return savedOrder(app).starts_with(id); }, std::chrono::seconds(3));
    }
    EXPECT_TRUE(didMove) << savedOrder(app);

    ASSERT_TRUE(clickUntil(place(0), [&] {
        return app.readings().back()["preset"] == "Quiet night" ||
               app.waitFor([](const json& reading) { return reading["preset"] == "Quiet night"; },
                           std::chrono::seconds(3));
    }));
    screen.key(u"Delete"_s);
    screen.key(u"Return"_s);
    EXPECT_TRUE(waitUntil([&] { return presets(app).empty(); }));
    EXPECT_TRUE(app.waitFor([](const json& reading) { return reading["preset"].is_null(); }));
}

} // namespace
} // namespace kestrowind
