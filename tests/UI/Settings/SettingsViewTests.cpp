#include "SettingsMachine.h"

#include "Core/LocalizedText.h"
#include "Support/QmlComplaints.h"
#include "Support/QtPrinters.h"
#include "UI/DesignSystem/Spinner.h"

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickView>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>
#include <gmock/gmock.h>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_SettingsPlugin)

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

class SettingsViewTest : public testing::Test {
protected:
    SettingsViewTest() {
        view.engine()->addImportPath(u"qrc:/qt/qml"_s);
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setInitialProperties({{u"model"_s, QVariant::fromValue(&model)}});
        view.setSource(QUrl(u"qrc:/qt/qml/Kestrowind/Settings/SettingsRootView.qml"_s));
        view.resize(820, 900);
    }
    void show() {
        ASSERT_EQ(view.status(), QQuickView::Ready);
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
        view.requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    /// The visible item that a screen reader calls by this name; null when there is none.
    QQuickItem* named(const QString& name, QAccessible::Role role) {
        return named(view.rootObject(), name, role);
    }
    QQuickItem* button(const char* key) { return named(localized(key), QAccessible::Button); }
    QQuickItem* toggle(const char* key) { return named(localized(key), QAccessible::CheckBox); }
    void click(QQuickItem* item, QPointF at) {
        QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, item->mapToScene(at).toPoint());
    }

    SettingsMachine machine;
    SettingsModel model{machine.services()};
    QQuickView view;

    static QQuickItem* named(QQuickItem* below, const QString& name, QAccessible::Role role) {
        for (QQuickItem* child : below->childItems()) {
            if (!child->isVisible())
                continue;
            const auto* spoken = QAccessible::queryAccessibleInterface(child);
            if (spoken && spoken->role() == role && spoken->text(QAccessible::Name) == name)
                return child;
            if (QQuickItem* found = named(child, name, role))
                return found;
        }
        return nullptr;
    }

private:
    QmlComplaints m_complaints;
};

TEST_F(SettingsViewTest, InstallsByAClickWithASpinnerInPlaceOfTheButtons) {
    machine.helper.setState(HelperState::notInstalled);
    show();
    auto* const install = button("settings.helper.installButton");
    ASSERT_NE(install, nullptr);
    EXPECT_EQ(button("settings.helper.uninstallButton"), nullptr);
    click(install, {10, 10});
    EXPECT_EQ(machine.helper.openInstallations.size(), 1U);
    EXPECT_FALSE(install->isVisible());
    EXPECT_NE(named(localized("settings.helper.workingSpinner"), QAccessible::Indicator), nullptr);

    const double before = view.rootObject()->implicitHeight();
    machine.helper.endInstallation(
        std::unexpected(InstallError{InstallError::Kind::adminScriptFailed, u"no"_s}));
    EXPECT_TRUE(install->isVisible());
    EXPECT_NE(named(localized("settings.helper.error.adminScriptFailed").arg(u"no"_s),
                    QAccessible::AlertMessage),
              nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.rootObject()->implicitHeight() > before; }));
    machine.helper.setState(HelperState::unreachable);
    EXPECT_NE(button("settings.helper.reinstallHelperButton"), nullptr);
    click(button("settings.helper.uninstallButton"), {10, 10});
    EXPECT_EQ(machine.helper.uninstallations, 1);
}

TEST_F(SettingsViewTest, AsksForTheStatusOnlyWhileItIsOnScreen) {
    EXPECT_EQ(machine.helper.questions, 0);
    show();
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
    show();
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
    login->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_TRUE(isOn()) << "put back";
    EXPECT_NE(named(u"Read-only file system"_s, QAccessible::AlertMessage), nullptr);
    auto* const dock = toggle("settings.general.hideDockIcon.title");
    ASSERT_NE(dock, nullptr);
    dock->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_FALSE(machine.defaults->boolean(u"hideDockIconWhenWindowClosed"_s));
    for (const auto& [key, kind] :
         {std::pair("settings.notifications.overheating.title", AlertKind::overheating),
          std::pair("settings.notifications.standingFan.title", AlertKind::fanStandsStill),
          std::pair("settings.notifications.helperFailure.title", AlertKind::helperFailed)}) {
        auto* const row = toggle(key);
        ASSERT_NE(row, nullptr) << key;
        row->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(&view, Qt::Key_Space);
        EXPECT_TRUE(machine.defaults->boolean(alertKey(kind))) << key;
    }
}

TEST_F(SettingsViewTest, ChoosesTheTemperatureByKeyAndByClick) {
    show();
    auto* const picker =
        named(localized("settings.fanBoost.temperatureSource.title"), QAccessible::ComboBox);
    ASSERT_NE(picker, nullptr);
    picker->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(model.fanBoost()->temperatureSource(), 1);
    EXPECT_EQ(picker->property("displayText").toString(),
              localized("settings.fanBoost.temperatureSource.hottest"));
    click(picker, {10, 10});
    const QString average = localized("settings.fanBoost.temperatureSource.average");
    QQuickItem* item = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&] {
        item = named(view.contentItem(), average, QAccessible::ListItem);
        return item != nullptr;
    }));
    click(item, {20, 8});
    EXPECT_TRUE(QTest::qWaitFor([&] { return model.fanBoost()->temperatureSource() == 0; }));
}

TEST_F(SettingsViewTest, ShowsAVersionAndWarningsOnlyWhenThereAreSome) {
    show();
    const auto says = [&](const QString& text, QAccessible::Role role) {
        return named(text, role) != nullptr;
    };
    const QString outdated = localized("settings.helper.outdatedNotice");
    const QString unlocking = localized("settings.helper.unlockingCaption");
    const QString version = localized("settings.about.helperVersionLabel") + u": 9.9"_s;
    EXPECT_FALSE(says(outdated, QAccessible::AlertMessage));
    EXPECT_FALSE(says(version, QAccessible::StaticText));
    machine.helper.setLastStatus(statusWith(HelperControlPhase::unlocking, {}, "9.9"));
    EXPECT_TRUE(says(outdated, QAccessible::AlertMessage));
    EXPECT_TRUE(says(version, QAccessible::StaticText));
    EXPECT_TRUE(says(unlocking, QAccessible::StaticText));
    machine.helper.setLastStatus(statusWith(HelperControlPhase::failed, "stuck"));
    EXPECT_TRUE(says(u"stuck"_s, QAccessible::AlertMessage));
    EXPECT_FALSE(says(unlocking, QAccessible::StaticText));
    EXPECT_FALSE(says(outdated, QAccessible::AlertMessage));
}

} // namespace
} // namespace kestrowind
