#pragma once

#include "Platform/SystemAppearance.h"

#include <QObject>
#include <QPointer>

#include <optional>

class QQmlEngine;

namespace kestrowind {

/// The colour scheme of one scene, that is of one QML engine: what the scene forces, else what the
/// system says, else what the toolkit's palette looks like.
class SceneAppearance final : public QObject {
    Q_OBJECT

public:
    /// The engine's one; made on first use, owned by the engine.
    [[nodiscard]] static SceneAppearance& of(QQmlEngine& engine);

    [[nodiscard]] ColorScheme colorScheme() const { return m_colorScheme; }
    [[nodiscard]] bool isDark() const { return m_colorScheme == ColorScheme::dark; }

    /// The appearance stays the caller's; it may go before the engine does.
    void setSystemAppearance(SystemAppearance* appearance);
    void setForcedScheme(std::optional<ColorScheme> scheme);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void colorSchemeChanged();

private:
    explicit SceneAppearance(QQmlEngine& engine);
    void reconsider();

    QPointer<SystemAppearance> m_systemAppearance;
    std::optional<ColorScheme> m_forcedScheme;
    ColorScheme m_colorScheme;
};

} // namespace kestrowind
