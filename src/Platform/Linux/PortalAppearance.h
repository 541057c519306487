#pragma once

#include "Platform/SystemAppearance.h"

#include <QDBusConnection>

class QDBusVariant;

namespace kestrowind {

/// The colour scheme and the accent that the XDG desktop portal tells over a bus. It is asked
/// asynchronously and followed; a bus without a portal leaves them absent.
class PortalAppearance final : public SystemAppearance {
    Q_OBJECT

public:
    explicit PortalAppearance(QDBusConnection bus, QObject* parent = nullptr);

    [[nodiscard]] std::optional<ColorScheme> colorScheme() const override { return m_colorScheme; }
    [[nodiscard]] std::optional<AccentColor> accentColor() const override { return m_accentColor; }

private Q_SLOTS:
    void noteSetting(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask();
    void askFor(const QString& key);
    void adopt(const QString& key, const QVariant& value);

    QDBusConnection m_bus;
    std::optional<ColorScheme> m_colorScheme;
    std::optional<AccentColor> m_accentColor;
};

} // namespace kestrowind
