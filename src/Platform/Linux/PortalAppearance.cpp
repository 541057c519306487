#include "Platform/Linux/PortalAppearance.h"

#include "Platform/Linux/SessionBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <limits>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString appearanceGroup = u"org.freedesktop.appearance"_s;
const QString colorSchemeKey = u"color-scheme"_s;

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
    QDBusMessage call =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
    call << appearanceGroup << colorSchemeKey;
    // However late it answers: the bus itself tells of a portal that went without an answer.
    constexpr int withoutEnd = std::numeric_limits<int>::max();
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, withoutEnd), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        if (!reply.isError())
            adopt(reply.value().variant());
    });
}

void PortalAppearance::noteSetting(const QString& group, const QString& key,
                                   const QDBusVariant& value) {
    if (group == appearanceGroup && key == colorSchemeKey)
        adopt(value.variant());
}

void PortalAppearance::adopt(const QVariant& value) {
    const std::optional<ColorScheme> scheme = schemeFromPortal(unwrapped(value));
    if (scheme == m_colorScheme)
        return;
    m_colorScheme = scheme;
    Q_EMIT colorSchemeChanged();
}

} // namespace kestrowind
