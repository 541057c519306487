#include "UI/MenuBar/MenuBarIcon.h"

#include "UI/MenuBar/MenuBarLabelImage.h"

#include <QPixmap>

#include <cmath>

namespace kestrowind {

using namespace Qt::StringLiterals;

QString MenuBarIcon::key(const MenuBarReading& reading, double scale) {
    return QString::number(static_cast<int>(scale * 100)) + u'|' + reading.temperatureText() +
           u'\n' + reading.fanText();
}

bool MenuBarIcon::update(const MenuBarReading& reading, double scale, ColorScheme scheme) {
    const QString newKey = key(reading, scale);
    const bool isSameScheme = m_style == Style::templateLabel || scheme == m_scheme;
    if (newKey == m_key && isSameScheme)
        return false;
    m_key = newKey;
    m_scheme = scheme;
    m_icon = m_style == Style::templateLabel ? templateLabel(reading, scale)
                                             : square(reading, scale, scheme);
    return true;
}

QIcon MenuBarIcon::templateLabel(const MenuBarReading& reading, double scale) {
    QIcon icon;
    const QImage image =
        MenuBarLabelImage::label(reading.temperatureText(), reading.fanText(), scale);
    if (!image.isNull())
        icon.addPixmap(QPixmap::fromImage(image));
    icon.setIsMask(true);
    return icon;
}

QIcon MenuBarIcon::square(const MenuBarReading& reading, double scale, ColorScheme scheme) {
    const QColor ink = scheme == ColorScheme::dark ? Qt::white : Qt::black;
    QIcon icon;
    // The sizes that trays of the usual panels have, in points.
    for (const int size : {22, 24, 32}) {
        QImage image =
            MenuBarLabelImage::square(reading, static_cast<int>(std::lround(size * scale)), ink);
        image.setDevicePixelRatio(scale);
        icon.addPixmap(QPixmap::fromImage(image));
    }
    return icon;
}

} // namespace kestrowind
