#include "UI/Dashboard/HistorySamples.h"

#include "Core/LocalizedText.h"

namespace kestrowind::HistorySamples {

QList<TelemetrySample> downsampled(const QList<TelemetrySample>& history) {
    const qsizetype count = history.size();
    if (count <= pointLimit)
        return history;
    const qsizetype step = (count + pointLimit - 1) / pointLimit;
    QList<TelemetrySample> kept;
    kept.reserve(count / step + 2);
    for (qsizetype index = 0; index < count; index += step)
        kept.append(history[index]);
    if ((count - 1) % step != 0)
        kept.append(history.last());
    return kept;
}

QString windowCaption(const QList<TelemetrySample>& history) {
    if (history.isEmpty())
        return localized("dashboard.history.windowFallback");
    const auto minutes = std::chrono::ceil<std::chrono::minutes>(history.last().timestamp -
                                                                 history.first().timestamp)
                             .count();
    if (minutes > 1)
        return localized("dashboard.history.windowLastMinutes").arg(minutes);
    return localized("dashboard.history.windowLastMinute");
}

bool areEnough(const QList<TelemetrySample>& history) {
    return history.size() >= 2;
}

} // namespace kestrowind::HistorySamples
