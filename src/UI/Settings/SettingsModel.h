#pragma once

#include "UI/DesignSystem/VisibilityWatch.h"
#include "UI/Settings/FanBoostSettings.h"
#include "UI/Settings/GeneralSettings.h"
#include "UI/Settings/HelperSettings.h"

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class SystemInformation;

/// What the settings work on. All of it must outlive the model.
struct SettingsServices {
    HelperControlling& helper;
    const ControlState& control;
    HelperOperation& helperOperation;
    UserDefaults& userDefaults;
    LoginItem& loginItem;
    const SystemInformation& information;
};

/// The settings screen: a model for each of its sections, and whether anybody can see it.
class SettingsModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(kestrowind::HelperSettings* helper READ helper CONSTANT FINAL)
    Q_PROPERTY(kestrowind::FanBoostSettings* fanBoost READ fanBoost CONSTANT FINAL)
    Q_PROPERTY(kestrowind::GeneralSettings* general READ general CONSTANT FINAL)
    Q_PROPERTY(QString version READ version CONSTANT FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's state")

public:
    explicit SettingsModel(const SettingsServices& services);

    [[nodiscard]] HelperSettings* helper() { return &m_helper; }
    [[nodiscard]] FanBoostSettings* fanBoost() { return &m_fanBoost; }
    [[nodiscard]] GeneralSettings* general() { return &m_general; }
    /// The application's: "2.3 (41)".
    [[nodiscard]] const QString& version() const { return m_version; }

    /// The item that shows the model; without one nobody sees it.
    Q_INVOKABLE void setView(QQuickItem* view);

private:
    void takeVisibility();

    HelperSettings m_helper;
    FanBoostSettings m_fanBoost;
    GeneralSettings m_general;
    QString m_version;
    VisibilityWatch m_visibility;
};

} // namespace kestrowind
