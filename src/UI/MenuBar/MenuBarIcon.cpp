#include "UI/MenuBar/MenuBarIcon.h"

#include "Core/AssignIfChanged.h"
#include "UI/MenuBar/MenuBarLabelImage.h"

#include <QPixmap>

#include <cmath>

namespace kestrowind {

bool MenuBarIcon::update(const MenuBarReading& reading, double scale, ColorScheme scheme) {
    const bool isTemplate = m_style == StatusItem::Style::templateLabel;
    if (!assignIfChanged(
            m_key, std::optional(Key{.reading = reading,
                                     .scale = scale,
                                     .scheme = isTemplate ? std::nullopt : std::optional(scheme)})))
        return false;
    m_icon = QIcon();
    if (isTemplate) {
        m_icon.addPixmap(QPixmap::fromImage(MenuBarLabelImage::label(reading, scale)));
        m_icon.setIsMask(true);
        return true;
    }
    const QColor ink = scheme == ColorScheme::dark ? Qt::white : Qt::black;
    // The sizes that trays of the usual panels have, in points.
    for (const int size : {22, 24, 32}) {
        QImage image =
            MenuBarLabelImage::square(reading, static_cast<int>(std::lround(size * scale)), ink);
        image.setDevicePixelRatio(scale);
        m_icon.addPixmap(QPixmap::fromImage(image));
    }
    return true;
}

} // namespace kestrowind
