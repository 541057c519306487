#pragma once

#include "Core/FanPreset.h"

#include <QByteArray>
#include <QString>

#include <expected>

namespace kestrowind {

/// A preset as a file to hand on: what presets.json would be with this preset alone in it.
namespace PresetFile {

inline constexpr char suffix[] = "json";
/// A file above this is none of ours and is not read to its end.
inline constexpr qsizetype largestSize = 256 * 1024; ///< bytes
inline constexpr qsizetype mostCurves = 16;
inline constexpr qsizetype mostPoints = 100; ///< of a curve

/// A built-in becomes a preset like any other. The error is for people.
[[nodiscard]] std::expected<QByteArray, QString> encode(FanPreset preset);

/// The one preset of the content, its name trimmed, if an editor could have made it: a name, at
/// least one curve, points within the editor's bounds and in the order of their temperatures. The
/// error is for people.
[[nodiscard]] std::expected<FanPreset, QString> decode(const QByteArray& content);

/// The same of a file. Anything but a file of a sane size is an error too.
[[nodiscard]] std::expected<FanPreset, QString> read(const QString& path);

} // namespace PresetFile

} // namespace kestrowind
