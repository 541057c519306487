#include "Core/LocalizedText.h"
#include "KestrowindApp/Scenes.h"
#include "Platform/Linux/RememberedActivationPolicy.h"
#include "Platform/Platform.h"
#include "Support/FakeLoginItem.h"
#include "Support/FakeStatusItem.h"
#include "Support/FakeSystemInformation.h"
#include "Support/QtPrinters.h"
#include "Support/ScreenReader.h"
#include "UI/MenuBar/MenuBarPanel.h"
#include "UI/TestState.h"

#include <QGuiApplication>
#include <QQuickView>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using QAccessible::Button;
using QAccessible::CheckBox;
using QAccessible::MenuItem;
using QAccessible::PageTab;
using QAccessible::RadioButton;

class NoNotifications final : public Notifications {
public:
    void show(const Notification& /*notification*/) override {}
    void withdraw(const QString& /*identifier*/) override {}
};

/// Every scene of the application, and nobody at its pointer or keyboard.
class AssistiveTechnologyTest : public testing::Test {
protected:
    AssistiveTechnologyTest() {
        state.telemetry().ingest(sampleAt(0, 60, 50, {2000, 2100}));
        platform.information = std::make_unique<FakeSystemInformation>();
        platform.userDefaults = state.home.defaults();
        platform.activationPolicy = std::make_unique<RememberedActivationPolicy>();
        platform.loginItem = std::make_unique<FakeLoginItem>();
        platform.systemAppearance = [] { return nullptr; };
        platform.notifications = [] { return std::make_unique<NoNotifications>(); };
        platform.returnFreedMemory = [] {};
        scenes = std::make_unique<Scenes>(*state.appState, platform, ScenesSetup{.statusItem = [] {
            return std::make_unique<FakeStatusItem>();
        }});
        scenes->present();
        reader.look(*QGuiApplication::topLevelWindows().first());
    }

    void go(const QString& section) {
        reader.act(section, PageTab);
        EXPECT_TRUE(reader.state(section, PageTab).selected);
    }

    ScreenReader reader;
    TestState state;
    Platform platform;
    std::unique_ptr<Scenes> scenes;
};

TEST_F(AssistiveTechnologyTest, SwitchesPresetsByPillCardAndChip) {
    const QString card =
        u"Cool: "_s + localized("presets.card.spokenCaption")
                          .arg(localized("presets.card.coolCaption"), u"2"_s, u"3"_s);
    MenuBarPanel panel(*state.appState, nullptr);
    panel.open({300, 0, 22, 22});
    for (const auto& [section, name] :
         {std::pair("Dashboard", u"Cool"_s), {"Presets", card}, {nullptr, u"Cool"_s}}) {
        SCOPED_TRACE(section ? section : "panel");
        if (section)
            go(QString::fromLatin1(section));
        else
            reader.look(*panel.view());
        EXPECT_TRUE(reader.state(u"Automatic"_s, RadioButton).checked) << "at the start";
        const auto changes = reader.heard(QAccessible::StateChanged, u"Cool"_s);
        reader.act(name, RadioButton);
        EXPECT_EQ(state.presets().activePresetID(), FanPreset::coolID);
        EXPECT_TRUE(reader.state(name, RadioButton).checked);
        EXPECT_FALSE(reader.state(u"Automatic"_s, RadioButton).checked);
        EXPECT_GT(reader.heard(QAccessible::StateChanged, u"Cool"_s), changes);
        reader.act(name, RadioButton, QAccessibleActionInterface::toggleAction());
        EXPECT_TRUE(reader.state(name, RadioButton).checked) << "once more";
        state.presets().setActivePresetID(std::nullopt);
        EXPECT_FALSE(reader.state(name, RadioButton).checked);
    }
}

TEST_F(AssistiveTechnologyTest, CreatesRenamesAndDeletesAPreset) {
    const auto names = [this] {
        QStringList list;
        for (const FanPreset& preset : state.presets().presets())
            list.append(preset.name);
        return list;
    };
    const auto choose = [this](const char* command) {
        const QString menu = localized("presets.card.menuButton").arg(u"Night"_s);
        reader.act(menu, Button);
        EXPECT_NE(reader.awaited(menu, QAccessible::PopupMenu), nullptr);
        reader.act(localized(command), MenuItem);
        EXPECT_TRUE(reader.isGone(menu, QAccessible::PopupMenu));
    };
    const auto rename = [this](const QString& name) {
        QAccessibleInterface* field =
            reader.awaited(localized("presets.rename.fieldLabel"), QAccessible::EditableText);
        ASSERT_NE(field, nullptr);
        field->setText(QAccessible::Value, name);
        reader.act(localized("presets.rename.confirm"), Button);
        EXPECT_TRUE(reader.isGone(localized("presets.rename.confirm")));
    };
    go(u"Presets"_s);
    const QString ways = localized("presets.card.newPreset");
    reader.act(localized("presets.card.menuButton").arg(ways), Button);
    EXPECT_NE(reader.awaited(ways, QAccessible::PopupMenu), nullptr);
    EXPECT_NE(reader.awaited(localized("presets.contextMenu.import"), MenuItem), nullptr);
    reader.act(localized("presets.contextMenu.new"), MenuItem);
    rename(u"Night"_s);
    EXPECT_EQ(names().last(), u"Night"_s);
    EXPECT_NE(reader.awaited(u"Night"_s, RadioButton), nullptr);
    choose("presets.contextMenu.rename");
    rename(u" Night "_s);
    choose("presets.contextMenu.delete");
    reader.act(localized("presets.delete.confirm"), Button);
    EXPECT_FALSE(names().contains(u"Night"_s));
    EXPECT_TRUE(reader.isGone(u"Night"_s));
}

TEST_F(AssistiveTechnologyTest, SaysWhyNoPillCanBePressedAndWhereACardWent) {
    state.helper->setState(HelperState::notInstalled);
    const QString hindrance = localized("mainWindow.presetBar.helperMissing");
    reader.act(u"Cool: "_s + hindrance, RadioButton);
    EXPECT_EQ(state.presets().activePresetID(), std::nullopt);
    EXPECT_FALSE(reader.state(u"Cool"_s, RadioButton).checked);

    go(u"Presets"_s);
    const auto moves = reader.heard(QAccessible::DescriptionChanged, u"Cool"_s);
    state.presets().moveSlot(PresetSlot::preset(FanPreset::coolID), PresetSlot::automatic());
    EXPECT_GT(reader.heard(QAccessible::DescriptionChanged, u"Cool"_s), moves);
}

TEST_F(AssistiveTechnologyTest, ChangesTheSettingsAndInstallsTheHelper) {
    state.helper->setState(HelperState::notInstalled);
    go(u"Settings"_s);
    reader.act(localized("settings.helper.installButton"), Button);
    EXPECT_TRUE(state.helper->isInstalled());
    EXPECT_NE(reader.awaited(localized("settings.helper.uninstallButton"), Button), nullptr);

    const QString login = localized("settings.general.launchAtLogin.title");
    for (const QString& action :
         {QAccessibleActionInterface::toggleAction(), QAccessibleActionInterface::pressAction()}) {
        const bool before = platform.loginItem->isEnabled();
        reader.act(login, CheckBox, action);
        EXPECT_EQ(platform.loginItem->isEnabled(), !before);
        EXPECT_EQ(reader.state(login, CheckBox).checked, !before);
    }

    const QString source = localized("settings.fanBoost.temperatureSource.title");
    const QString hottest = localized("settings.fanBoost.temperatureSource.hottest");
    reader.act(source, Button);
    EXPECT_NE(reader.awaited(source, QAccessible::PopupMenu), nullptr);
    EXPECT_TRUE(reader.state(localized("settings.fanBoost.temperatureSource.average")).checked);
    reader.act(hottest, MenuItem);
    EXPECT_NE(reader.awaited(source + u": "_s + hottest, Button), nullptr);
    go(u"Dashboard"_s);
}

TEST_F(AssistiveTechnologyTest, MovesAddsAndDeletesPoints) {
    const QUuid id = state.presets().addPreset(u"Night"_s)->id;
    const auto points = [&] { return state.presets().preset(id)->curves.first().points(); };
    const auto count = points().size();
    state.presets().setActivePresetID(id);
    go(u"Curves"_s);
    const QString point = localized("curves.chart.pointAccessibilityLabel").arg(2);
    QAccessibleValueInterface* slider = reader.value(point);
    ASSERT_NE(slider, nullptr);
    EXPECT_EQ(slider->minimumValue(), 0);
    EXPECT_EQ(slider->maximumValue(), 100);
    const double before = points()[1].percent;
    reader.act(point, QAccessible::Slider, QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(slider->currentValue(), before + 1);
    reader.act(point, QAccessible::Slider, QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(slider->currentValue(), before);
    slider->setCurrentValue(37);
    EXPECT_EQ(slider->currentValue(), 37);
    EXPECT_EQ(reader.heard(QAccessible::ValueChanged, point), 3);
    EXPECT_TRUE(QTest::qWaitFor([&] { return points()[1].percent == 37; }));

    reader.act(localized("curves.chart.label"));
    EXPECT_EQ(points().size(), count + 1);
    reader.act(point, QAccessible::Slider);
    EXPECT_NE(reader.awaited(point, QAccessible::PopupMenu), nullptr);
    reader.act(localized("curves.chart.deletePoint"), MenuItem);
    EXPECT_EQ(points().size(), count);
}

TEST_F(AssistiveTechnologyTest, BoostsInSteps) {
    MenuBarPanel panel(*state.appState, nullptr);
    panel.open({300, 0, 22, 22});
    reader.look(*panel.view());
    const QString boost = localized("menuBar.boost.caption");
    QAccessibleValueInterface* slider = reader.value(boost);
    ASSERT_NE(slider, nullptr);
    EXPECT_EQ(slider->minimumValue(), 0);
    EXPECT_EQ(slider->maximumValue(), 100);
    const auto stored = [this] { return state.engine().quickBoostPercent(); };
    reader.act(boost, QAccessible::Slider, QAccessibleActionInterface::increaseAction());
    reader.act(boost, QAccessible::Slider, QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(stored(), 10);
    reader.act(boost, QAccessible::Slider, QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(stored(), 5);
    EXPECT_EQ(reader.heard(QAccessible::ValueChanged, boost), 3);
    for (const auto& [wanted, applied] : {std::pair(42, 40.0), {41, 40.0}, {400, 100.0}}) {
        slider->setCurrentValue(wanted);
        EXPECT_EQ(stored(), applied);
        EXPECT_EQ(slider->currentValue(), applied) << wanted;
    }
}

} // namespace
} // namespace kestrowind
