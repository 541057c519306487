#pragma once

#include "Core/AssignIfChanged.h"

#include <QObject>

namespace kestrowind {

/// Whether the main window is shown and not minimised: what nobody sees need not exist. One for the
/// life of the scene.
class MainWindowVisibility final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] bool isOnScreen() const { return m_isOnScreen; }
    void setOnScreen(bool isOnScreen) {
        if (assignIfChanged(m_isOnScreen, isOnScreen))
            Q_EMIT isOnScreenChanged();
    }

Q_SIGNALS:
    void isOnScreenChanged();

private:
    bool m_isOnScreen = true;
};

} // namespace kestrowind
