#pragma once

#include "Core/FanPreset.h"

#include <QByteArray>
#include <QString>

#include <expected>

namespace kestrowind {

/// A preset as a file to hand on: what presets.json would be with this preset alone in it.
namespace PresetFile {

inline constexpr char suffix[] = "json";
inline constexpr qsizetype mostCurves = 16;
inline constexpr qsizetype mostPoints = 100; ///< of a curve
inline constexpr qsizetype longestText = 5 * FanPreset::longestName;

/// A built-in becomes a preset like any other. The error is for people.
[[nodiscard]] std::expected<QByteArray, QString> encode(FanPreset preset);

/// The one preset of the content, its name trimmed, if an editor could have made it: a name, at
/// least one curve, each with a point at least, points within the editor's bounds and in the order
/// of their temperatures. The error is for people.
[[nodiscard]] std::expected<FanPreset, QString> decode(const QByteArray& content);

/// The same of a file, of no more than largestPresetsFile.
[[nodiscard]] std::expected<FanPreset, QString> read(const QString& path);

} // namespace PresetFile

} // namespace kestrowind
