#pragma once

#include "Platform/SystemAppearance.h"

#include <QColor>
#include <QObject>
#include <QPointer>

#include <optional>

class QQmlEngine;

namespace kestrowind {

/// The colour scheme of one scene, that is of one QML engine: what the scene forces, else what the
/// system says, else what the toolkit's palette looks like; and the accent that the user has chosen
/// for the whole system.
class SceneAppearance final : public QObject {
    Q_OBJECT

public:
    /// The engine's one; made on first use, owned by the engine.
    [[nodiscard]] static SceneAppearance& of(QQmlEngine& engine);

    [[nodiscard]] ColorScheme colorScheme() const { return m_colorScheme; }
    [[nodiscard]] bool isDark() const { return m_colorScheme == ColorScheme::dark; }
    /// Absent where the system has none.
    [[nodiscard]] const std::optional<QColor>& accentColor() const { return m_accentColor; }

    /// The appearance stays the caller's; it may go before the engine does.
    void setSystemAppearance(SystemAppearance* appearance);
    void setForcedScheme(std::optional<ColorScheme> scheme);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void colorSchemeChanged();
    void accentColorChanged();

private:
    explicit SceneAppearance(QQmlEngine& engine);
    void reconsider();
    /// What the toolkit's palette says, where it follows the system.
    [[nodiscard]] static std::optional<QColor> toolkitAccent();

    QPointer<SystemAppearance> m_systemAppearance;
    std::optional<ColorScheme> m_forcedScheme;
    ColorScheme m_colorScheme;
    std::optional<QColor> m_accentColor;
};

} // namespace kestrowind
