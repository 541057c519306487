#pragma once

#include "Core/TelemetrySample.h"

#include <QByteArray>
#include <QList>
#include <QTimeZone>

namespace kestrowind {

/// The samples as a table for other programs: RFC 4180, in ASCII, with a header line that gives the
/// units. A row has its time as ISO 8601 with the zone's offset, the temperatures, and the speed of
/// each fan that occurs anywhere. What is not known is an empty field. The columns' names are the
/// same in every language.
[[nodiscard]] QByteArray historyTable(const QList<TelemetrySample>& samples,
                                      const QTimeZone& zone = QTimeZone::systemTimeZone());

} // namespace kestrowind
