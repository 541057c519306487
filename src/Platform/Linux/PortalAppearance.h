#pragma once

#include "Platform/SystemAppearance.h"

#include <QDBusConnection>

class QDBusVariant;

namespace kestrowind {

/// The colour scheme that the XDG desktop portal tells over a bus. It is asked asynchronously and
/// followed; a bus without a portal leaves the scheme absent.
class PortalAppearance final : public SystemAppearance {
    Q_OBJECT

public:
    explicit PortalAppearance(QDBusConnection bus, QObject* parent = nullptr);

    [[nodiscard]] std::optional<ColorScheme> colorScheme() const override { return m_colorScheme; }

private Q_SLOTS:
    void noteSetting(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask();
    void adopt(const QVariant& value);

    QDBusConnection m_bus;
    std::optional<ColorScheme> m_colorScheme;
};

} // namespace kestrowind
