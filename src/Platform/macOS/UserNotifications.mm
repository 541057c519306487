#include "Platform/macOS/UserNotifications.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QPointer>

#import <UserNotifications/UserNotifications.h>

using kestrowind::Notifications;

namespace kestrowind {
namespace {

Q_LOGGING_CATEGORY(notificationsLog, "app.kestrowind.notifications", QtInfoMsg)

} // namespace
} // namespace kestrowind

/// Shows ours while the application is in front too, and hears of clicks.
@interface KestrowindNotificationDelegate : NSObject <UNUserNotificationCenterDelegate>
- (instancetype)initWithNotifications:(Notifications&)notifications;
@end

@implementation KestrowindNotificationDelegate {
    QPointer<Notifications> _notifications;
}

- (instancetype)initWithNotifications:(Notifications&)notifications {
    if ((self = [super init]))
        _notifications = &notifications;
    return self;
}

- (void)userNotificationCenter:(UNUserNotificationCenter*)center
       willPresentNotification:(UNNotification*)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions))completionHandler {
    completionHandler(static_cast<UNNotificationPresentationOptions>(
        UNNotificationPresentationOptionBanner | UNNotificationPresentationOptionList));
}

- (void)userNotificationCenter:(UNUserNotificationCenter*)center
    didReceiveNotificationResponse:(UNNotificationResponse*)response
             withCompletionHandler:(void (^)(void))completionHandler {
    const bool wasClicked =
        [response.actionIdentifier isEqualToString:UNNotificationDefaultActionIdentifier];
    if (wasClicked && _notifications)
        QMetaObject::invokeMethod(_notifications, &Notifications::activated, Qt::QueuedConnection);
    completionHandler();
}

@end

namespace kestrowind {

struct UserNotifications::Link {
    UNUserNotificationCenter* center;
    KestrowindNotificationDelegate* delegate;
};

UserNotifications::UserNotifications() {
    // The centre knows bundles only, and takes a program outside of one down.
    if (!NSBundle.mainBundle.bundleIdentifier)
        return;
    m_link = std::make_unique<Link>(
        UNUserNotificationCenter.currentNotificationCenter,
        [[KestrowindNotificationDelegate alloc] initWithNotifications:*this]);
    m_link->center.delegate = m_link->delegate;
}

UserNotifications::~UserNotifications() {
    if (m_link)
        m_link->center.delegate = nil;
}

void UserNotifications::show(const Notification& notification) {
    // Handlers may come on any thread.
    const auto fail = [self = QPointer(this), notification](const QString& reason) {
        qCDebug(notificationsLog).noquote() << "not shown:" << reason;
        QMetaObject::invokeMethod(qApp, [=] {
            if (self)
                Q_EMIT self->notShown(notification);
        });
    };
    if (!m_link) {
        fail(QStringLiteral("the program is not in a bundle"));
        return;
    }
    UNMutableNotificationContent* content = [[UNMutableNotificationContent alloc] init];
    content.title = notification.title.toNSString();
    content.body = notification.body.toNSString();
    content.sound = UNNotificationSound.defaultSound;
    // One of the same identifier takes the place of the older one.
    UNNotificationRequest* request =
        [UNNotificationRequest requestWithIdentifier:notification.identifier.toNSString()
                                             content:content
                                             trigger:nil];
    UNUserNotificationCenter* center = m_link->center;
    const auto wanted = static_cast<UNAuthorizationOptions>(UNAuthorizationOptionAlert |
                                                            UNAuthorizationOptionSound);
    [center requestAuthorizationWithOptions:wanted
                          completionHandler:^(BOOL granted, NSError* refusal) {
                              if (!granted) {
                                  fail(refusal ? QString::fromNSString(refusal.localizedDescription)
                                               : QStringLiteral("the user does not want any"));
                                  return;
                              }
                              [center
                                  addNotificationRequest:request
                                   withCompletionHandler:^(NSError* error) {
                                       if (error)
                                           fail(QString::fromNSString(error.localizedDescription));
                                   }];
                          }];
}

void UserNotifications::withdraw(const QString& identifier) {
    if (!m_link)
        return;
    NSArray<NSString*>* const identifiers = @[ identifier.toNSString() ];
    [m_link->center removePendingNotificationRequestsWithIdentifiers:identifiers];
    [m_link->center removeDeliveredNotificationsWithIdentifiers:identifiers];
}

} // namespace kestrowind
