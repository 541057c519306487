#include "Platform/Linux/PortalAppearance.h"

#include "Platform/Linux/SessionBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <limits>
#include <utility>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString appearanceGroup = u"org.freedesktop.appearance"_s;
const QString colorSchemeKey = u"color-scheme"_s;
const QString accentColorKey = u"accent-color"_s;

/// The portal's values: 0 no preference, 1 prefers dark, 2 prefers light.
std::optional<ColorScheme> schemeFromPortal(const QVariant& value) {
    switch (value.toUInt()) {
    case 1:
        return ColorScheme::dark;
    case 2:
        return ColorScheme::light;
    default:
        return std::nullopt;
    }
}

/// Three parts of sRGB; any that is not between 0 and 1 means none.
std::optional<AccentColor> accentFromPortal(const QVariant& value) {
    if (!value.canConvert<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != "(ddd)"_L1)
        return std::nullopt;
    AccentColor color;
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    const auto isPart = [](double part) { return part >= 0 && part <= 1; };
    if (!isPart(color.red) || !isPart(color.green) || !isPart(color.blue))
        return std::nullopt;
    return color;
}

/// Read wraps its answer in a variant inside the variant; SettingChanged does not.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

PortalAppearance::PortalAppearance(QDBusConnection bus, QObject* parent)
    : SystemAppearance(parent)
    , m_bus(std::move(bus)) {
    if (!m_bus.isConnected())
        return;
    // The library looks the slot's types up by their names, and knows this one of its own only once
    // somebody has used it.
    qRegisterMetaType<QDBusVariant>();
    SessionBus::follow(m_bus, {portalService, portalPath, settingsInterface, u"SettingChanged"_s},
                       this, SLOT(noteSetting(QString, QString, QDBusVariant)));
    // At login it may come up later than we do; one that was replaced may know another answer.
    auto* const portals = new QDBusServiceWatcher(portalService, m_bus,
                                                  QDBusServiceWatcher::WatchForRegistration, this);
    connect(portals, &QDBusServiceWatcher::serviceRegistered, this, &PortalAppearance::ask);
    ask();
}

void PortalAppearance::ask() {
    for (const QString& key : {colorSchemeKey, accentColorKey})
        askFor(key);
}

void PortalAppearance::askFor(const QString& key) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
    call << appearanceGroup << key;
    // However late it answers: the bus itself tells of a portal that went without an answer.
    constexpr int withoutEnd = std::numeric_limits<int>::max();
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, withoutEnd), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, key] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        if (!reply.isError())
            adopt(key, reply.value().variant());
    });
}

void PortalAppearance::noteSetting(const QString& group, const QString& key,
                                   const QDBusVariant& value) {
    if (group == appearanceGroup)
        adopt(key, value.variant());
}

void PortalAppearance::adopt(const QString& key, const QVariant& value) {
    if (key == colorSchemeKey) {
        const auto scheme = schemeFromPortal(unwrapped(value));
        if (std::exchange(m_colorScheme, scheme) != scheme)
            Q_EMIT colorSchemeChanged();
    } else if (key == accentColorKey) {
        const auto accent = accentFromPortal(unwrapped(value));
        if (std::exchange(m_accentColor, accent) != accent)
            Q_EMIT accentColorChanged();
    }
}

} // namespace kestrowind
