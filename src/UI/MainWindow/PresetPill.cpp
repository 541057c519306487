#include "UI/MainWindow/PresetPill.h"

#include "Core/LocalizedText.h"
#include "Core/OneLine.h"
#include "UI/DesignSystem/Typography.h"

#include <QFontMetricsF>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace kestrowind::PresetPills {
namespace {

using namespace Qt::StringLiterals;

constexpr int longestWholeTitle = 10;
constexpr int shortenedLength = 9;
constexpr std::array<qsizetype, 5> candidateCounts = {8, 6, 4, 2, 1};

// The pill's insides, points.
constexpr double horizontalPadding = 16;
constexpr double symbolSize = 18;
constexpr double symbolSpacing = 6;
/// There are characters as wide as whole words.
constexpr double widestTitle = 160;

/// The position behind the given number of perceived characters; absent if there are fewer.
std::optional<qsizetype> positionAfter(const QString& text, int characters) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype position = 0;
    for (int i = 0; i < characters; ++i) {
        position = finder.toNextBoundary();
        if (position < 0)
            return std::nullopt;
    }
    return position;
}

double pillWidth(const QString& title) {
    const QFontMetricsF metrics(Typography::weighted(Typography::callout(), QFont::DemiBold));
    return 2 * horizontalPadding + symbolSize + symbolSpacing +
           std::min(std::ceil(metrics.horizontalAdvance(title)), widestTitle);
}

PresetPill pill(const PresetSlot& slot, const QList<FanPreset>& presets,
                const std::optional<QUuid>& activePresetID) {
    PresetPill pill{.slot = slot, .isActive = slot.presetID() == activePresetID};
    const auto preset = std::ranges::find_if(
        presets, [&](const FanPreset& candidate) { return candidate.id == slot.presetID(); });
    if (preset != presets.end()) {
        pill.fullName = oneLine(preset->name);
        pill.title = shortenedTitle(pill.fullName);
        pill.symbolName = preset->symbolName;
    } else {
        pill.fullName = localized("shared.mode.automatic");
        pill.title = pill.fullName;
        pill.symbolName = u"gearshape"_s;
    }
    pill.width = pillWidth(pill.title);
    return pill;
}

Row row(const QList<double>& pillWidths, qsizetype count) {
    count = std::min(count, pillWidths.size());
    const bool overflows = count < pillWidths.size();
    const double pillsWidth = std::accumulate(pillWidths.begin(), pillWidths.begin() + count, 0.0);
    const auto gaps = static_cast<double>(std::max<qsizetype>(count - (overflows ? 0 : 1), 0));
    return {count, pillsWidth + gaps * spacing + (overflows ? overflowWidth : 0)};
}

} // namespace

QString shortenedTitle(const QString& name) {
    if (!positionAfter(name, longestWholeTitle + 1))
        return name;
    return name.first(positionAfter(name, shortenedLength).value()).trimmed() + u'…';
}

QList<PresetPill> pills(const QList<PresetSlot>& slotOrder, const QList<FanPreset>& presets,
                        const std::optional<QUuid>& activePresetID) {
    QList<PresetPill> pills;
    for (const PresetSlot& slot : slotOrder)
        pills.append(pill(slot, presets, activePresetID));
    return pills;
}

QList<Choice> choices(const QList<PresetPill>& pills) {
    QList<Choice> choices;
    for (const PresetPill& pill : pills)
        choices.append({.identifier = pill.slotID(),
                        .title = pill.fullName,
                        .symbolName = pill.symbolName,
                        .isChosen = pill.isActive});
    return choices;
}

Row fittingRow(const QList<double>& pillWidths, double availableWidth) {
    for (const qsizetype count : candidateCounts) {
        const Row candidate = row(pillWidths, count);
        if (candidate.width <= availableWidth)
            return candidate;
    }
    return row(pillWidths, candidateCounts.back());
}

} // namespace kestrowind::PresetPills
