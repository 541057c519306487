#include "SettingsMachine.h"

#include "Core/LocalizedText.h"
#include "Support/QtPrinters.h"
#include "UI/RoomView.h"

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class SettingsViewTest : public testing::Test {
protected:
    QQuickItem* button(const char* key) { return view.named(localized(key), QAccessible::Button); }
    QQuickItem* toggle(const char* key) {
        return view.named(localized(key), QAccessible::CheckBox);
    }
    bool says(const QString& text, QAccessible::Role role) {
        return view.named(text, role) != nullptr;
    }
    void click(QQuickItem* item, QPointF at) {
        ASSERT_NE(item, nullptr);
        QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, item->mapToScene(at).toPoint());
    }
    void press(QQuickItem* item, Qt::Key key) {
        ASSERT_NE(item, nullptr);
        item->forceActiveFocus(Qt::TabFocusReason);
        view.press(key);
    }

    SettingsMachine machine;
    SettingsModel model{machine.services()};
    RoomView view{u"Settings/SettingsRootView.qml"_s, model, {820, 900}};
};

TEST_F(SettingsViewTest, InstallsByAClickWithASpinnerInPlaceOfTheButtons) {
    machine.helper.setState(HelperState::notInstalled);
    view.showActive();
    auto* const install = button("settings.helper.installButton");
    EXPECT_EQ(button("settings.helper.uninstallButton"), nullptr);
    click(install, {10, 10});
    EXPECT_EQ(machine.helper.openInstallations.size(), 1U);
    EXPECT_FALSE(install->isVisible());
    EXPECT_TRUE(says(localized("settings.helper.workingSpinner"), QAccessible::ProgressBar));

    const double before = view.rootObject()->implicitHeight();
    machine.helper.endInstallation(
        std::unexpected(InstallError{InstallError::Kind::adminScriptFailed, u"no"_s}));
    EXPECT_TRUE(install->isVisible());
    EXPECT_TRUE(says(localized("settings.helper.error.adminScriptFailed").arg(u"no"_s),
                     QAccessible::AlertMessage));
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.rootObject()->implicitHeight() > before; }));
    machine.helper.setState(HelperState::unreachable);
    EXPECT_NE(button("settings.helper.reinstallHelperButton"), nullptr);
    click(button("settings.helper.uninstallButton"), {10, 10});
    EXPECT_EQ(machine.helper.uninstallations, 1);
}

TEST_F(SettingsViewTest, AsksForTheStatusOnlyWhileItIsOnScreen) {
    EXPECT_EQ(machine.helper.questions, 0);
    view.showActive();
    ASSERT_TRUE(QTest::qWaitFor([&] { return machine.helper.questions == 1; }));
    machine.helper.answerQuestions();
    view.hide();
    const int before = machine.helper.questions;
    machine.loginItem.enabled = true;
    EXPECT_FALSE(QTest::qWaitFor([&] { return machine.helper.questions > before; }, 2500));
    view.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return machine.helper.questions == before + 1; }));
    EXPECT_TRUE(model.general()->launchesAtLogin()) << "asked again as well";
}

TEST_F(SettingsViewTest, FlipsASettingByAClickAnywhereInItsRowAndByKey) {
    view.showActive();
    auto* const login = toggle("settings.general.launchAtLogin.title");
    ASSERT_NE(login, nullptr);
    const auto isOn = [login] { return login->property("checked").toBool(); };
    for (const QPointF at : {QPointF(30, 10), QPointF(login->width() / 2, login->height() - 4),
                             QPointF(login->width() - 30, login->height() / 2)}) {
        const bool before = isOn();
        click(login, at);
        EXPECT_EQ(isOn(), !before);
        EXPECT_EQ(machine.loginItem.enabled, !before);
    }
    ASSERT_TRUE(isOn());
    machine.loginItem.failure = u"Read-only file system"_s;
    press(login, Qt::Key_Return);
    EXPECT_TRUE(isOn()) << "put back";
    EXPECT_TRUE(says(u"Read-only file system"_s, QAccessible::AlertMessage));

    const QString hidesDockIcon = u"hideDockIconWhenWindowClosed"_s;
    ASSERT_TRUE(machine.defaults->boolean(hidesDockIcon));
    for (const auto& [row, key] :
         {std::pair("settings.general.hideDockIcon.title", hidesDockIcon),
          std::pair("settings.notifications.overheating.title", alertKey(AlertKind::overheating)),
          std::pair("settings.notifications.standingFan.title",
                    alertKey(AlertKind::fanStandsStill)),
          std::pair("settings.notifications.helperFailure.title",
                    alertKey(AlertKind::helperFailed))}) {
        const bool before = machine.defaults->boolean(key);
        press(toggle(row), Qt::Key_Space);
        EXPECT_EQ(machine.defaults->boolean(key), !before) << row;
        machine.defaults->setBoolean(key, before);
        EXPECT_EQ(toggle(row)->property("checked").toBool(), before) << row << " elsewhere";
    }
}

TEST_F(SettingsViewTest, ChoosesTheTemperatureByClick) {
    view.showActive();
    view.click(localized("settings.fanBoost.temperatureSource.title"));
    QQuickItem* const hottest = view.awaited(
        localized("settings.fanBoost.temperatureSource.hottest"), QAccessible::MenuItem);
    click(hottest, {20, 8});
    EXPECT_TRUE(QTest::qWaitFor([&] { return model.fanBoost()->temperatureSource() == 1; }));
}

TEST_F(SettingsViewTest, ShowsAVersionAndWarningsOnlyWhenThereAreSome) {
    view.showActive();
    const QString outdated = localized("settings.helper.outdatedNotice");
    const QString unlocking = localized("settings.helper.unlockingCaption");
    const QString version = localized("settings.about.helperVersionLabel") + u": 9.9"_s;
    EXPECT_FALSE(says(outdated, QAccessible::AlertMessage));
    EXPECT_FALSE(says(version, QAccessible::StaticText));
    machine.helper.setLastStatus(statusWith(HelperControlPhase::unlocking, "stuck", "9.9"));
    EXPECT_TRUE(says(outdated, QAccessible::AlertMessage));
    EXPECT_TRUE(says(version, QAccessible::StaticText));
    EXPECT_TRUE(says(unlocking, QAccessible::StaticText));
    EXPECT_FALSE(says(u"stuck"_s, QAccessible::AlertMessage)) << "it has not failed yet";
    machine.helper.setLastStatus(statusWith(HelperControlPhase::failed, "stuck"));
    EXPECT_TRUE(says(u"stuck"_s, QAccessible::AlertMessage));
    EXPECT_FALSE(says(unlocking, QAccessible::StaticText));
    EXPECT_FALSE(says(outdated, QAccessible::AlertMessage));
    machine.helper.setLastStatus(statusWith(HelperControlPhase::failed));
    EXPECT_FALSE(says({}, QAccessible::AlertMessage)) << "a failure without a reason";
}

} // namespace
} // namespace kestrowind
