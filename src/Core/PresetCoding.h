#pragma once

#include "Core/FanPreset.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <expected>

namespace kestrowind {

// The content of presets.json: an array of presets with sorted keys, indented for people.

/// A file above this is none of ours and is not read to its end. Three of the largest presets that
/// can be imported and then edited take less than 0.8 MB.
inline constexpr qsizetype largestPresetsFile = 1024 * 1024; ///< bytes

/// The error says what cannot be written: a number that is not finite.
[[nodiscard]] std::expected<QByteArray, QString> encodePresets(const QList<FanPreset>& presets);

/// All or nothing: a missing key, a wrong type, a key given twice, a number out of range, text that
/// is not UTF-8 or a null byte anywhere fails the whole. The error is for the log. Values are not
/// clamped and points keep their order.
[[nodiscard]] std::expected<QList<FanPreset>, QString> decodePresets(const QByteArray& content);

} // namespace kestrowind
