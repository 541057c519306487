#pragma once

#include <QString>
#include <QStringList>

namespace kestrowind {

struct FanReason;

/// A fan's reason in words.
namespace FanReasonText {

/// For a line under the fan: "57 % for 67 °C on “Cool”".
[[nodiscard]] QString sentence(const FanReason& reason);

/// How that came about, a step a line: the temperature, what was asked for, what is applied.
[[nodiscard]] QStringList chain(const FanReason& reason);

} // namespace FanReasonText
} // namespace kestrowind
