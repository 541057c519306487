#pragma once

#include <QObject>

class QWindow;

namespace kestrowind {

class ActivationPolicy;
class MainWindowVisibility;
class UserDefaults;

/// Takes the window's life over: closing it only hides it, and by default the Dock icon with it.
/// It lives as long as the window.
class MainWindowController final : public QObject {
    Q_OBJECT

public:
    MainWindowController(QWindow& window, MainWindowVisibility& visibility,
                         const UserDefaults& userDefaults, ActivationPolicy& activationPolicy);

    /// Shows the window in front of everything, with a Dock icon, also when it was minimised.
    void show();
    /// Whether the window may really be closed: never. It is hidden instead.
    bool windowShouldClose();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void closed();

private:
    void windowOnScreenStateChanged();

    QWindow& m_window;
    MainWindowVisibility& m_visibility;
    const UserDefaults& m_userDefaults;
    ActivationPolicy& m_activationPolicy;
};

} // namespace kestrowind
