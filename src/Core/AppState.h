#pragma once

#include "Core/ControlEngine.h"
#include "Core/ControlState.h"
#include "Core/FanReason.h"
#include "Core/HelperControlling.h"
#include "Core/PresetStore.h"
#include "Core/TelemetryStore.h"

#include <QObject>

#include <functional>
#include <memory>

namespace kestrowind {

struct Platform;

/// The root of everything that lives as long as the process: the four services, in the order in
/// which they need each other, and how they stand with the fans. Belongs to the main thread.
class AppState final : public QObject {
    Q_OBJECT

public:
    using OpenMainWindow = std::function<void()>;

    /// Builds the services on the platform, starts sampling, and applies the launch option
    /// "ActivatePreset". The platform must outlive the state.
    explicit AppState(Platform& platform);
    /// Takes services that are ready made, so that another helper can stand in for the real one.
    AppState(std::unique_ptr<TelemetryStore> telemetry, std::unique_ptr<HelperControlling> helper,
             std::unique_ptr<PresetStore> presets, std::unique_ptr<ControlEngine> engine);
    ~AppState() override;

    [[nodiscard]] TelemetryStore& telemetry() const { return *m_telemetry; }
    [[nodiscard]] HelperControlling& helper() const { return *m_helper; }
    [[nodiscard]] PresetStore& presets() const { return *m_presets; }
    [[nodiscard]] ControlEngine& engine() const { return *m_engine; }
    [[nodiscard]] const ControlState& control() const { return m_control; }

    /// Why each fan of the latest sample runs as it does, in the sample's order; empty without one.
    [[nodiscard]] QList<FanReason> fanReasons() const;

    /// Opens the main window; absent until somebody can.
    [[nodiscard]] const OpenMainWindow& openMainWindow() const { return m_openMainWindow; }
    void setOpenMainWindow(OpenMainWindow openMainWindow);

    /// Has the preset of the slot, or the machine itself, control the fans from now on. Ignored for
    /// what is no slot's text identifier, and when the preset is gone.
    void activate(const QString& slotID);

Q_SIGNALS:
    void openMainWindowChanged();

private:
    void activateSessionPreset(const QString& name);

    OpenMainWindow m_openMainWindow;
    // Each is destroyed before what it refers to.
    std::unique_ptr<TelemetryStore> m_telemetry;
    std::unique_ptr<HelperControlling> m_helper;
    std::unique_ptr<PresetStore> m_presets;
    std::unique_ptr<ControlEngine> m_engine;
    ControlState m_control{*m_helper, *m_engine};
};

} // namespace kestrowind
