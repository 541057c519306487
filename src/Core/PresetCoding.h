#pragma once

#include "Core/FanPreset.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <expected>

namespace kestrowind {

// The content of presets.json: an array of presets with sorted keys, indented for people.

/// The error says what cannot be written: a number that is not finite.
[[nodiscard]] std::expected<QByteArray, QString> encodePresets(const QList<FanPreset>& presets);

/// All or nothing: a missing key, a wrong type, a key given twice, a number out of range or text
/// that is not UTF-8 anywhere fails the whole. The error is for the log. Values are not clamped and
/// points keep their order.
[[nodiscard]] std::expected<QList<FanPreset>, QString> decodePresets(const QByteArray& content);

} // namespace kestrowind
