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

const Description& description(MainSection section) {
    return descriptions.at(static_cast<std::size_t>(section));
}

} // namespace

QString rawValue(MainSection section) {
    return description(section).rawValue;
}

QString title(MainSection section) {
    return localized(description(section).titleKey);
}

QString symbolName(MainSection section) {
    return description(section).symbolName;
}

MainSection sectionNamed(const QString& name) {
    for (const Description& candidate : descriptions) {
        if (name.toLower() == candidate.rawValue)
            return candidate.section;
    }
    return MainSection::dashboard;
}

int MainSectionsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mainSections.size());
}

QVariant MainSectionsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const MainSection section = mainSections.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return title(section);
    case SymbolNameRole:
        return symbolName(section);
    default:
        return {};
    }
}

QHash<int, QByteArray> MainSectionsModel::roleNames() const {
    return {{TitleRole, QByteArrayLiteral("title")},
            {SymbolNameRole, QByteArrayLiteral("symbolName")}};
}

} // namespace kestrowind
