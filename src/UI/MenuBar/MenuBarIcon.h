#pragma once

#include "Platform/SystemAppearance.h"
#include "UI/MenuBar/MenuBarReading.h"
#include "UI/MenuBar/StatusItem.h"

#include <QIcon>

#include <optional>

namespace kestrowind {

/// The menu-bar item's icon, drawn anew only when what it shows has changed.
class MenuBarIcon {
public:
    explicit MenuBarIcon(StatusItem::Style style)
        : m_style(style) {}

    /// Whether the icon is another one than before. `scale` is that of the sharpest screen.
    [[nodiscard]] bool update(const MenuBarReading& reading, double scale, ColorScheme scheme);
    [[nodiscard]] const QIcon& icon() const { return m_icon; }

private:
    /// What the pictures depend on.
    struct Key {
        MenuBarReading reading;
        double scale = 1;
        std::optional<ColorScheme> scheme; ///< absent where the menu bar colours them

        bool operator==(const Key&) const = default;
    };

    StatusItem::Style m_style;
    std::optional<Key> m_key;
    QIcon m_icon;
};

} // namespace kestrowind
