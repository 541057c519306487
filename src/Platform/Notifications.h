#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace kestrowind {

/// A short message outside of our own windows.
struct Notification {
    /// A newer notification of the same identifier takes the place of an older one.
    QString identifier;
    QString title;
    QString body; ///< plain text

    bool operator==(const Notification&) const = default;
};

/// The desktop's notifications. Belongs to the main thread.
class Notifications : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Returns at once. `notShown` follows, at once or later, when nobody shows it.
    virtual void show(const Notification& notification) = 0;
    /// Takes back what was shown under the identifier, if anything still is.
    virtual void withdraw(const QString& identifier) = 0;

Q_SIGNALS:
    /// Nothing shows notifications here, or the user has turned them off for us.
    void notShown(const kestrowind::Notification& notification);
    /// The user answered one by a click.
    void activated();
};

using NotificationsFactory = std::function<std::unique_ptr<Notifications>()>;

} // namespace kestrowind
