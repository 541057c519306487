#pragma once

#include "UI/DesignSystem/Palette.h"

#include <QObject>
#include <QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class SceneAppearance;

/// The palette in the scene's colour scheme and accent: the base of the singleton AppColors, which
/// adds what only a QML function can be, a lookup that bindings follow.
class ScenePalette : public QObject, public QQmlParserStatus, private Palette::Colors {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed FINAL)
    Q_PROPERTY(QColor windowBackground MEMBER windowBackground NOTIFY changed FINAL)
    Q_PROPERTY(QColor cardFill MEMBER cardFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor popupBackground MEMBER popupBackground NOTIFY changed FINAL)
    Q_PROPERTY(QColor panelBackground MEMBER panelBackground NOTIFY changed FINAL)
    Q_PROPERTY(QColor separator MEMBER separator NOTIFY changed FINAL)
    Q_PROPERTY(QColor primaryText MEMBER primaryText NOTIFY changed FINAL)
    Q_PROPERTY(QColor secondaryText MEMBER secondaryText NOTIFY changed FINAL)
    Q_PROPERTY(QColor tertiaryText MEMBER tertiaryText NOTIFY changed FINAL)
    Q_PROPERTY(QColor quaternaryFill MEMBER quaternaryFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor accent MEMBER accent NOTIFY changed FINAL)
    Q_PROPERTY(QColor accentFill MEMBER accentFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor onAccent MEMBER onAccent NOTIFY changed FINAL)
    Q_PROPERTY(QColor controlFill MEMBER controlFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor controlBorder MEMBER controlBorder NOTIFY changed FINAL)
    Q_PROPERTY(QColor hoverFill MEMBER hoverFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor pressedFill MEMBER pressedFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor selectedSegment MEMBER selectedSegment NOTIFY changed FINAL)
    Q_PROPERTY(QColor focusRing MEMBER focusRing NOTIFY changed FINAL)
    Q_PROPERTY(QColor track MEMBER track NOTIFY changed FINAL)
    Q_PROPERTY(QColor knob MEMBER knob NOTIFY changed FINAL)
    Q_PROPERTY(QColor warning MEMBER warning NOTIFY changed FINAL)
    Q_PROPERTY(QColor danger MEMBER danger NOTIFY changed FINAL)
    Q_PROPERTY(QColor dangerFill MEMBER dangerFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor onDanger MEMBER onDanger NOTIFY changed FINAL)
    Q_PROPERTY(QColor success MEMBER success NOTIFY changed FINAL)
    Q_PROPERTY(QColor shadow MEMBER shadow NOTIFY changed FINAL)
    Q_PROPERTY(QColor scrim MEMBER scrim NOTIFY changed FINAL)
    Q_PROPERTY(QColor fieldFill MEMBER fieldFill NOTIFY changed FINAL)
    Q_PROPERTY(QColor popupBorder MEMBER popupBorder NOTIFY changed FINAL)
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
    [[nodiscard]] static QColor fanGradientStart() { return Palette::fanGradientStops()[0].second; }
    [[nodiscard]] static QColor fanGradientEnd() { return Palette::fanGradientStops()[1].second; }
    [[nodiscard]] static QColor cpuSeries() { return Palette::cpuSeries(); }
    [[nodiscard]] static QColor gpuSeries() { return Palette::gpuSeries(); }

    [[nodiscard]] Q_INVOKABLE static QColor temperatureColorFor(double celsius, bool dark);

Q_SIGNALS:
    void changed();

private:
    ColorScheme m_scheme = ColorScheme::light;
};

} // namespace kestrowind
