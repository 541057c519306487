#include "UI/MenuBar/Linux/TrayStatusItem.h"

#include "Platform/Notifications.h"
#include "Support/QtPrinters.h"

#include <gtest/gtest.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(TrayStatusItemTest, WaitsForATrayAndTellsWhatIsDoneThere) {
    bool isTrayThere = false;
    TrayStatusItem item([&] { return isTrayThere; });
    QStringList heard;
    const auto note = [&heard](const QString& what) { return [&heard, what] { heard += what; }; };
    QObject::connect(&item, &StatusItem::placed, note(u"placed"_s));
    QObject::connect(&item, &StatusItem::clicked, note(u"clicked"_s));
    QObject::connect(&item, &StatusItem::menuRequested, note(u"menu"_s));
    QObject::connect(&item, &StatusItem::messageClicked, note(u"message"_s));
    item.start();
    item.lookNow();
    item.showMessage({.title = u"too early"_s});
    EXPECT_FALSE(item.isPlaced());
    isTrayThere = true;
    item.lookNow();
    item.lookNow();
    ASSERT_TRUE(item.isPlaced());

    item.setCommands({{u"Open"_s, note(u"open"_s)}, {u"Quit"_s, note(u"quit"_s)}});
    item.setPicture(QIcon(), u"72°C"_s);
    auto* icon = item.findChild<QSystemTrayIcon*>();
    EXPECT_TRUE(icon->isVisible());
    EXPECT_EQ(icon->toolTip(), u"72°C"_s);
    for (const auto reason : {QSystemTrayIcon::Trigger, QSystemTrayIcon::DoubleClick,
                              QSystemTrayIcon::MiddleClick, QSystemTrayIcon::Context})
        Q_EMIT icon->activated(reason);
    Q_EMIT icon->messageClicked();
    QStringList menu;
    for (QAction* action : icon->contextMenu()->actions()) {
        menu.append(action->text());
        action->trigger();
    }
    EXPECT_EQ(menu, (QStringList{u"Open"_s, QString(), u"Quit"_s}));
    EXPECT_EQ(heard, (QStringList{u"placed"_s, u"clicked"_s, u"menu"_s, u"message"_s, u"open"_s,
                                  u"quit"_s}));
}

} // namespace
} // namespace kestrowind
