#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace kestrowind {

enum class ColorScheme { light, dark };

/// Whether the user's system looks dark or light. Belongs to the main thread.
class SystemAppearance : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Absent as long as the system has not said, or when it has no preference.
    [[nodiscard]] virtual std::optional<ColorScheme> colorScheme() const = 0;

Q_SIGNALS:
    void colorSchemeChanged();
};

using SystemAppearanceFactory = std::function<std::unique_ptr<SystemAppearance>()>;

} // namespace kestrowind
