#pragma once

#include "Core/TelemetrySample.h"

#include <QList>
#include <QString>

/// The history as the charts take it.
namespace kestrowind::HistorySamples {

/// A line wants no more points than this, about: the eye sees no more either.
inline constexpr qsizetype pointLimit = 240;

/// Every n-th sample, and always the newest.
[[nodiscard]] QList<TelemetrySample> downsampled(const QList<TelemetrySample>& history);

/// How much time the history spans, in words.
[[nodiscard]] QString windowCaption(const QList<TelemetrySample>& history);

/// Less makes no line.
[[nodiscard]] bool areEnough(const QList<TelemetrySample>& history);

} // namespace kestrowind::HistorySamples
