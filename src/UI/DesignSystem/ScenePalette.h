#pragma once

#include "UI/DesignSystem/Palette.h"

#include <QObject>
#include <QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class SceneAppearance;

/// The palette in the scene's colour scheme and accent: the base of the singleton AppColors, which
/// adds what only a QML function can be, a lookup that bindings follow.
class ScenePalette : public QObject, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed FINAL)
    Q_PROPERTY(QColor windowBackground READ windowBackground NOTIFY changed FINAL)
    Q_PROPERTY(QColor cardFill READ cardFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor popupBackground READ popupBackground NOTIFY changed FINAL)
    Q_PROPERTY(QColor panelBackground READ panelBackground NOTIFY changed FINAL)
    Q_PROPERTY(QColor separator READ separator NOTIFY changed FINAL)
    Q_PROPERTY(QColor primaryText READ primaryText NOTIFY changed FINAL)
    Q_PROPERTY(QColor secondaryText READ secondaryText NOTIFY changed FINAL)
    Q_PROPERTY(QColor tertiaryText READ tertiaryText NOTIFY changed FINAL)
    Q_PROPERTY(QColor quaternaryFill READ quaternaryFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed FINAL)
    Q_PROPERTY(QColor accentFill READ accentFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor onAccent READ onAccent NOTIFY changed FINAL)
    Q_PROPERTY(QColor controlFill READ controlFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor controlBorder READ controlBorder NOTIFY changed FINAL)
    Q_PROPERTY(QColor hoverFill READ hoverFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor pressedFill READ pressedFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor selectedSegment READ selectedSegment NOTIFY changed FINAL)
    Q_PROPERTY(QColor focusRing READ focusRing NOTIFY changed FINAL)
    Q_PROPERTY(QColor track READ track NOTIFY changed FINAL)
    Q_PROPERTY(QColor knob READ knob NOTIFY changed FINAL)
    Q_PROPERTY(QColor warning READ warning NOTIFY changed FINAL)
    Q_PROPERTY(QColor danger READ danger NOTIFY changed FINAL)
    Q_PROPERTY(QColor dangerFill READ dangerFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor onDanger READ onDanger NOTIFY changed FINAL)
    Q_PROPERTY(QColor success READ success NOTIFY changed FINAL)
    Q_PROPERTY(QColor shadow READ shadow NOTIFY changed FINAL)
    Q_PROPERTY(QColor scrim READ scrim NOTIFY changed FINAL)
    Q_PROPERTY(QColor fieldFill READ fieldFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor popupBorder READ popupBorder NOTIFY changed FINAL)
    Q_PROPERTY(QColor fanGradientStart READ fanGradientStart CONSTANT FINAL)
    Q_PROPERTY(QColor fanGradientEnd READ fanGradientEnd CONSTANT FINAL)
    Q_PROPERTY(QColor cpuSeries READ cpuSeries CONSTANT FINAL)
    Q_PROPERTY(QColor gpuSeries READ gpuSeries CONSTANT FINAL)
    QML_ELEMENT

public:
    using QObject::QObject;

    void classBegin() override;
    void componentComplete() override {}

    [[nodiscard]] bool isDark() const { return m_scheme == ColorScheme::dark; }
    [[nodiscard]] QColor windowBackground() const { return color(Palette::Role::windowBackground); }
    [[nodiscard]] QColor cardFill() const { return color(Palette::Role::cardFill); }
    [[nodiscard]] QColor popupBackground() const { return color(Palette::Role::popupBackground); }
    [[nodiscard]] QColor panelBackground() const { return color(Palette::Role::panelBackground); }
    [[nodiscard]] QColor separator() const { return color(Palette::Role::separator); }
    [[nodiscard]] QColor primaryText() const { return color(Palette::Role::primaryText); }
    [[nodiscard]] QColor secondaryText() const { return color(Palette::Role::secondaryText); }
    [[nodiscard]] QColor tertiaryText() const { return color(Palette::Role::tertiaryText); }
    [[nodiscard]] QColor quaternaryFill() const { return color(Palette::Role::quaternaryFill); }
    [[nodiscard]] QColor accent() const { return color(Palette::Role::accent); }
    [[nodiscard]] QColor accentFill() const { return color(Palette::Role::accentFill); }
    [[nodiscard]] QColor onAccent() const { return color(Palette::Role::onAccent); }
    [[nodiscard]] QColor controlFill() const { return color(Palette::Role::controlFill); }
    [[nodiscard]] QColor controlBorder() const { return color(Palette::Role::controlBorder); }
    [[nodiscard]] QColor hoverFill() const { return color(Palette::Role::hoverFill); }
    [[nodiscard]] QColor pressedFill() const { return color(Palette::Role::pressedFill); }
    [[nodiscard]] QColor selectedSegment() const { return color(Palette::Role::selectedSegment); }
    [[nodiscard]] QColor focusRing() const { return color(Palette::Role::focusRing); }
    [[nodiscard]] QColor track() const { return color(Palette::Role::track); }
    [[nodiscard]] QColor knob() const { return color(Palette::Role::knob); }
    [[nodiscard]] QColor warning() const { return color(Palette::Role::warning); }
    [[nodiscard]] QColor danger() const { return color(Palette::Role::danger); }
    [[nodiscard]] QColor dangerFill() const { return color(Palette::Role::dangerFill); }
    [[nodiscard]] QColor onDanger() const { return color(Palette::Role::onDanger); }
    [[nodiscard]] QColor success() const { return color(Palette::Role::success); }
    [[nodiscard]] QColor shadow() const { return color(Palette::Role::shadow); }
    [[nodiscard]] QColor scrim() const { return color(Palette::Role::scrim); }
    [[nodiscard]] QColor fieldFill() const { return color(Palette::Role::fieldFill); }
    [[nodiscard]] QColor popupBorder() const { return color(Palette::Role::popupBorder); }
    [[nodiscard]] static QColor fanGradientStart() { return Palette::fanGradientStops()[0].second; }
    [[nodiscard]] static QColor fanGradientEnd() { return Palette::fanGradientStops()[1].second; }
    [[nodiscard]] static QColor cpuSeries() { return Palette::cpuSeries(); }
    [[nodiscard]] static QColor gpuSeries() { return Palette::gpuSeries(); }

    [[nodiscard]] Q_INVOKABLE static QColor temperatureColorFor(double celsius, bool dark);

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QColor color(Palette::Role role) const {
        return Palette::color(role, m_scheme, m_accent);
    }

    ColorScheme m_scheme = ColorScheme::light;
    std::optional<QColor> m_accent;
};

} // namespace kestrowind
