#pragma once

#include "UI/DesignSystem/Choice.h"
#include "UI/MenuBar/MenuBarFan.h"
#include "UI/MenuBar/MenuBarTemperature.h"

#include <QObject>
#include <QTimer>
#include <QtQml/qqml.h>

#include <chrono>
#include <memory>

namespace kestrowind {

class AppState;

/// What the menu-bar panel shows and does. It follows the application's state only while somebody
/// looks at it.
class MenuBarModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isWaiting READ isWaiting NOTIFY readingsChanged FINAL)
    Q_PROPERTY(kestrowind::RowList* fans READ fans CONSTANT FINAL)
    Q_PROPERTY(kestrowind::MenuBarTemperature cpu READ cpu NOTIFY readingsChanged FINAL)
    Q_PROPERTY(kestrowind::MenuBarTemperature gpu READ gpu NOTIFY readingsChanged FINAL)
    Q_PROPERTY(kestrowind::RowList* presets READ presets CONSTANT FINAL)
    Q_PROPERTY(int activePresetIndex READ activePresetIndex NOTIFY activePresetIndexChanged FINAL)
    Q_PROPERTY(bool isHelperInstalled READ isHelperInstalled NOTIFY helperChanged FINAL)
    Q_PROPERTY(bool isTakingControl READ isTakingControl NOTIFY helperChanged FINAL)
    Q_PROPERTY(bool isControlUnavailable READ isControlUnavailable NOTIFY helperChanged FINAL)
    Q_PROPERTY(double boostPercent READ boostPercent NOTIFY boostChanged FINAL)
    Q_PROPERTY(double boostStep READ boostStep CONSTANT FINAL)
    Q_PROPERTY(QString boostText READ boostText NOTIFY boostChanged FINAL)
    Q_PROPERTY(bool isBoosting READ isBoosting NOTIFY boostChanged FINAL)
    Q_PROPERTY(bool isBoostDragged READ isBoostDragged WRITE setIsBoostDragged NOTIFY
                   isBoostDraggedChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("The menu-bar panel is given one.")

public:
    /// For so long after the boost was moved, its slider is taken to be in use still: arrow keys
    /// let go of it with every press.
    static constexpr std::chrono::milliseconds boostRest{500};

    /// The state must outlive the model.
    explicit MenuBarModel(AppState& appState, QObject* parent = nullptr);
    ~MenuBarModel() override;

    /// Takes everything in at once, then every change; or lets go of all that.
    void setIsFollowing(bool isFollowing);

    /// Whether there is no sample yet.
    [[nodiscard]] bool isWaiting() const { return m_readings.isWaiting; }
    [[nodiscard]] MenuBarFans* fans() { return &m_fans; }
    [[nodiscard]] const MenuBarTemperature& cpu() const { return m_readings.cpu; }
    [[nodiscard]] const MenuBarTemperature& gpu() const { return m_readings.gpu; }

    /// Automatic control, then every preset in the store's order.
    [[nodiscard]] ChoiceList* presets() { return &m_presets; }
    /// -1 when none is.
    [[nodiscard]] int activePresetIndex() const { return m_activePresetIndex; }

    [[nodiscard]] bool isHelperInstalled() const { return m_helper.isInstalled; }
    /// The helper waits for the firmware to hand the fans over; nothing can be chosen meanwhile.
    /// Not before the boost's slider is let go, which sets it off in the middle of its movement.
    [[nodiscard]] bool isTakingControl() const { return m_helper.isTakingControl; }
    [[nodiscard]] bool isControlUnavailable() const { return m_helper.isControlUnavailable; }

    /// Stands still under the user's hand, whatever the engine says.
    [[nodiscard]] double boostPercent() const { return m_boostPercent; }
    [[nodiscard]] static double boostStep() { return 5; }
    [[nodiscard]] QString boostText() const;
    [[nodiscard]] bool isBoosting() const { return m_boostPercent > 0; }
    [[nodiscard]] bool isBoostDragged() const { return m_isBoostDragged; }
    void setIsBoostDragged(bool isBoostDragged);

    /// Ignored for what is no slot's identifier.
    Q_INVOKABLE void activate(const QString& slotID);
    /// Snaps to a step between 0 and 100.
    Q_INVOKABLE void setBoost(double percent);
    Q_INVOKABLE void openMainWindow();
    Q_INVOKABLE void dismiss() { Q_EMIT dismissRequested(); }
    Q_INVOKABLE void quit() { Q_EMIT quitRequested(); }

Q_SIGNALS:
    void readingsChanged();
    void activePresetIndexChanged();
    void helperChanged();
    void boostChanged();
    void isBoostDraggedChanged();

    /// The panel shall close.
    void dismissRequested();
    void quitRequested();

private:
    struct Readings {
        bool isWaiting = true;
        MenuBarTemperature cpu = {};
        MenuBarTemperature gpu = {};
        bool operator==(const Readings&) const = default;
    };
    struct Helper {
        bool isInstalled = false;
        bool isTakingControl = false;
        bool isControlUnavailable = false;
        bool operator==(const Helper&) const = default;
    };

    void refreshReadings();
    void refreshPresets();
    void refreshHelper();
    void refreshBoost();

    AppState& m_appState;
    std::unique_ptr<QObject> m_following; ///< holds the connections to the state
    Readings m_readings;
    MenuBarFans m_fans;
    ChoiceList m_presets;
    int m_activePresetIndex = -1;
    Helper m_helper;
    double m_boostPercent = 0;
    bool m_isBoostDragged = false;
    QTimer m_boostRest;
};

} // namespace kestrowind
