#include "UI/MainWindow/MainSection.h"

#include "Core/LocalizedText.h"

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

struct Description {
    MainSection section;
    QLatin1StringView rawValue;
    const char* titleKey;
    QLatin1StringView symbolName;
};

constexpr std::array descriptions = {
    Description{MainSection::dashboard, "dashboard"_L1, "mainWindow.section.dashboard",
                "gauge.with.dots.needle.50percent"_L1},
    Description{MainSection::curves, "curves"_L1, "mainWindow.section.curves",
                "chart.xyaxis.line"_L1},
    Description{MainSection::presets, "presets"_L1, "mainWindow.section.presets",
                "square.stack.3d.up"_L1},
    Description{MainSection::settings, "settings"_L1, "mainWindow.section.settings",
                "gearshape"_L1},
};
static_assert(descriptions.size() == mainSections.size());

} // namespace

Choice sectionChoice(MainSection section) {
    const Description& description = descriptions.at(static_cast<std::size_t>(section));
    return {.identifier = description.rawValue,
            .title = localized(description.titleKey),
            .symbolName = description.symbolName};
}

MainSection sectionNamed(const QString& name) {
    for (const Description& candidate : descriptions) {
        if (name.toLower() == candidate.rawValue)
            return candidate.section;
    }
    return MainSection::dashboard;
}

} // namespace kestrowind
