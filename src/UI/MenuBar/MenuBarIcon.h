#pragma once

#include "Platform/SystemAppearance.h"
#include "UI/MenuBar/MenuBarReading.h"

#include <QIcon>

namespace kestrowind {

/// The menu-bar item's icon, drawn anew only when what it shows has changed.
class MenuBarIcon {
public:
    enum class Style {
        templateLabel, ///< two lines of text that the menu bar colours for every state
        square,        ///< for trays with small square icons, coloured by the scheme
    };

    explicit MenuBarIcon(Style style)
        : m_style(style) {}

    /// Whether the icon is another one than before. `scale` is that of the sharpest screen.
    [[nodiscard]] bool update(const MenuBarReading& reading, double scale, ColorScheme scheme);
    [[nodiscard]] const QIcon& icon() const { return m_icon; }

    /// What the picture of the label depends on.
    [[nodiscard]] static QString key(const MenuBarReading& reading, double scale);

private:
    [[nodiscard]] static QIcon templateLabel(const MenuBarReading& reading, double scale);
    [[nodiscard]] static QIcon square(const MenuBarReading& reading, double scale,
                                      ColorScheme scheme);

    Style m_style;
    QString m_key;
    ColorScheme m_scheme = ColorScheme::light;
    QIcon m_icon;
};

} // namespace kestrowind
