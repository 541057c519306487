#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace kestrowind {

enum class ColorScheme { light, dark };

/// sRGB, each part from 0 to 1.
struct AccentColor {
    double red = 0;
    double green = 0;
    double blue = 0;

    bool operator==(const AccentColor&) const = default;
};

/// Whether the user's system looks dark or light, and in which colour it says what counts. Belongs
/// to the main thread.
class SystemAppearance : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Absent as long as the system has not said, or when it has no preference.
    [[nodiscard]] virtual std::optional<ColorScheme> colorScheme() const = 0;
    /// Absent likewise.
    [[nodiscard]] virtual std::optional<AccentColor> accentColor() const = 0;

Q_SIGNALS:
    void colorSchemeChanged();
    void accentColorChanged();
};

using SystemAppearanceFactory = std::function<std::unique_ptr<SystemAppearance>()>;

} // namespace kestrowind
