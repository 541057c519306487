#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// One die temperature's row of the panel.
struct MenuBarTemperature {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)
    Q_PROPERTY(QString symbolName MEMBER symbolName CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(QString spokenText MEMBER spokenText CONSTANT FINAL)
    Q_PROPERTY(bool isKnown MEMBER isKnown CONSTANT FINAL)
    Q_PROPERTY(double celsius MEMBER celsius CONSTANT FINAL)
    QML_VALUE_TYPE(menuBarTemperature)

public:
    QString label;
    QString symbolName;
    QString text;
    QString spokenText;
    bool isKnown = false; ///< whether `celsius` was measured, and has a colour
    double celsius = 0;

    [[nodiscard]] static MenuBarTemperature cpu(double celsius);
    [[nodiscard]] static MenuBarTemperature gpu(double celsius);

    bool operator==(const MenuBarTemperature&) const = default;

private:
    [[nodiscard]] static MenuBarTemperature of(const QString& label, const QString& symbolName,
                                               double celsius);
};

} // namespace kestrowind
