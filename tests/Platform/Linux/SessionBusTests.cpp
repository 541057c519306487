#include "Platform/Linux/BusNotifications.h"
#include "Platform/Linux/PortalAppearance.h"
#include "Platform/Linux/SessionBus.h"
#include "Platform/Platform.h"
#include "Support/QtPrinters.h"
#include "Support/SilentSocket.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

const QString service = u"org.freedesktop.Notifications"_s;
const QString path = u"/org/freedesktop/Notifications"_s;

/// A session bus of the test's own.
class PrivateBus {
public:
    PrivateBus() {
        m_daemon.start(u"dbus-daemon"_s,
                       {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s, u"--print-address"_s});
        m_daemon.waitForReadyRead(10'000);
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus() {
        for (const QString& name : m_names)
            QDBusConnection::disconnectFromBus(name);
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    QDBusConnection connect(const QString& name) {
        m_names.append(name);
        return QDBusConnection::connectToBus(m_address, name);
    }
    [[nodiscard]] const QString& address() const { return m_address; }

private:
    QProcess m_daemon;
    QString m_address;
    QStringList m_names;
};

/// The desktop's end.
class FakeDesktop final : public QDBusVirtualObject {
public:
    std::vector<QVariantList> notified;
    QList<uint> closed;
    bool refuses = false;

    explicit FakeDesktop(QDBusConnection bus)
        : m_bus(std::move(bus)) {
        m_bus.registerVirtualObject(path, this);
        m_bus.registerService(service);
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() == "CloseNotification"_L1) {
            closed.append(message.arguments().value(0).toUInt());
            return true;
        }
        notified.push_back(message.arguments());
        // As the service does: a number of one's own, or that of what is replaced.
        const uint replaced = message.arguments().at(1).toUInt();
        const uint id = replaced ? replaced : static_cast<uint>(notified.size()) + 40;
        bus.send(refuses ? message.createErrorReply(QDBusError::LimitsExceeded, u"too many"_s)
                         : message.createReply(id));
        return true;
    }
    void invoke(uint id, const QString& action) {
        QDBusMessage signal = QDBusMessage::createSignal(path, service, u"ActionInvoked"_s);
        m_bus.send(signal << id << action);
    }

private:
    QDBusConnection m_bus;
};

const Notification heat{
    .identifier = u"heat"_s, .title = u"Hot & bothered"_s, .body = u"a < b & c"_s};
const Notification fan{.identifier = u"fan-0"_s, .title = u"Fan"_s, .body = u"stands"_s};

TEST(BusNotifications, ShowsReplacesAndHearsOfClicks) {
    PrivateBus bus;
    FakeDesktop desktop(bus.connect(u"desktop"_s));
    BusNotifications notifications(bus.connect(u"application"_s));
    QSignalSpy activated(&notifications, &Notifications::activated);
    QSignalSpy notShown(&notifications, &Notifications::notShown);
    const auto show = [&](const Notification& notification) {
        const std::size_t before = desktop.notified.size();
        notifications.show(notification);
        return QTest::qWaitFor([&] { return desktop.notified.size() > before; });
    };
    ASSERT_TRUE(show(heat));
    const QVariantList call = desktop.notified.front();
    ASSERT_EQ(call.size(), 8);
    EXPECT_EQ(call.at(0), u"Kestrowind"_s);
    EXPECT_EQ(call.at(1), 0U);
    EXPECT_EQ(call.at(3), u"Hot & bothered"_s) << "a title has no markup";
    EXPECT_EQ(call.at(4), u"a &lt; b &amp; c"_s);
    ASSERT_TRUE(show(fan));
    EXPECT_EQ(desktop.notified.back().at(1), 0U) << "another kind replaces nothing";
    // The service's number is known once its reply was read, which is before the next signal of it.
    desktop.invoke(7, u"default"_s);
    desktop.invoke(41, u"close"_s);
    desktop.invoke(41, u"default"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return activated.size() == 1; }));
    ASSERT_TRUE(show(heat));
    EXPECT_EQ(desktop.notified.back().at(1), 41U);
    // One whose number is known, and one that is on its way.
    notifications.withdraw(fan.identifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop.closed == QList<uint>{42}; }));
    notifications.show(heat);
    notifications.withdraw(heat.identifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return desktop.closed.size() == 3; }));
    EXPECT_EQ(desktop.closed, QList<uint>({42, 41, 41}));

    desktop.refuses = true;
    ASSERT_TRUE(show(fan));
    ASSERT_TRUE(QTest::qWaitFor([&] { return notShown.size() == 1; }));
    EXPECT_EQ(notShown.front().front().value<Notification>(), fan);
    EXPECT_EQ(activated.size(), 1);
}

TEST(BusNotifications, SaysWhenNobodyShowsThem) {
    PrivateBus bus;
    BusNotifications nobody(bus.connect(u"lonely"_s));
    QSignalSpy notShown(&nobody, &Notifications::notShown);
    nobody.show(heat);
    ASSERT_TRUE(QTest::qWaitFor([&] { return notShown.size() == 1; }, 20'000));

    BusNotifications busless(QDBusConnection(u"no such connection"_s));
    QSignalSpy atOnce(&busless, &Notifications::notShown);
    busless.show(fan);
    ASSERT_EQ(atOnce.size(), 1);
    EXPECT_EQ(atOnce.front().front().value<Notification>(), fan);
}

/// The desktop's settings, which say dark at first.
class FakePortal final : public QDBusVirtualObject {
public:
    explicit FakePortal(QDBusConnection bus)
        : m_bus(std::move(bus)) {
        m_bus.registerVirtualObject(m_path, this);
        m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const bool isScheme = message.arguments().at(1) == u"color-scheme"_s;
        return bus.send(message.createReply(inside(inside(isScheme ? 1U : accent(1, 0.5, 0)))));
    }
    void change(const QString& group, const QVariant& value,
                const QString& key = u"color-scheme"_s) {
        QDBusMessage signal = QDBusMessage::createSignal(
            m_path, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        m_bus.send(signal << group << key << inside(value));
    }
    static QVariant accent(double red, double green, double blue) {
        QDBusArgument parts;
        parts.beginStructure();
        parts << red << green << blue;
        parts.endStructure();
        return QVariant::fromValue(parts);
    }

private:
    static QVariant inside(const QVariant& value) {
        return QVariant::fromValue(QDBusVariant(value));
    }

    const QString m_path = u"/org/freedesktop/portal/desktop"_s;
    QDBusConnection m_bus;
};

TEST(PortalAppearance, FollowsAPortalThatComesLate) {
    PrivateBus bus;
    const PortalAppearance appearance(bus.connect(u"application"_s));
    const std::optional<AccentColor> orange = AccentColor{.red = 1, .green = 0.5};
    QSignalSpy changed(&appearance, &SystemAppearance::colorSchemeChanged);
    FakePortal portal(bus.connect(u"desktop"_s));
    ASSERT_TRUE(changed.wait());
    EXPECT_EQ(appearance.colorScheme(), ColorScheme::dark);
    EXPECT_TRUE(QTest::qWaitFor([&] { return appearance.accentColor() == orange; }));
    portal.change(u"org.gnome.fonts"_s, 0U);
    for (const QVariant& none : {QVariant(u"blue"_s), FakePortal::accent(0, -1, 0)}) {
        portal.change(u"org.freedesktop.appearance"_s, FakePortal::accent(1, 0.5, 0),
                      u"accent-color"_s);
        portal.change(u"org.freedesktop.appearance"_s, none, u"accent-color"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !appearance.accentColor(); }));
    }
    portal.change(u"org.freedesktop.appearance"_s, 2U);
    ASSERT_TRUE(changed.wait());
    EXPECT_EQ(appearance.colorScheme(), ColorScheme::light);
    portal.change(u"org.freedesktop.appearance"_s, 0U);
    ASSERT_TRUE(changed.wait());
    EXPECT_EQ(appearance.colorScheme(), std::nullopt) << "no preference";

    const PortalAppearance busless(QDBusConnection(u"no such connection"_s));
    EXPECT_EQ(busless.colorScheme(), std::nullopt);
}

TEST(Platform, DrawsWithoutOpenGLAndDoesWithoutABusThatIsSilent) {
    const SilentSocket socket;
    for (const char* unset : {"QT_QUICK_BACKEND", "QSG_RHI_BACKEND"})
        qunsetenv(unset);
    qputenv("DBUS_SESSION_BUS_ADDRESS", socket.busAddress());
    prepareDesktop();
    EXPECT_EQ(qgetenv("QT_QUICK_BACKEND"), "software");
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:");
}

TEST(SessionBus, IsSilentWhenItTakesConnectionsAndSaysNothing) {
    using namespace std::chrono_literals;
    const SilentSocket socket;
    const QByteArray& silent = socket.busAddress();
    const PrivateBus bus;
    const QByteArray alive = bus.address().toLatin1();
    for (const QByteArray& addresses : {silent, "unix:path=/no%20where;" + silent + ';' + alive})
        EXPECT_TRUE(SessionBus::isSilent(addresses, 1ms)) << addresses.constData();
    for (const QByteArray& addresses :
         {alive, alive + ';' + silent, QByteArray("unix:path=/nowhere"), QByteArray("autolaunch:"),
          QByteArray("nonsense")})
        EXPECT_FALSE(SessionBus::isSilent(addresses, 20s)) << addresses.constData();
}

} // namespace
} // namespace kestrowind
