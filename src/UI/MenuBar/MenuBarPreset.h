#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// One choice among the presets, or automatic control.
struct MenuBarPreset {
    Q_GADGET
    Q_PROPERTY(QString slotID MEMBER slotID CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString symbolName MEMBER symbolName CONSTANT FINAL)
    Q_PROPERTY(bool isActive MEMBER isActive CONSTANT FINAL)
    QML_VALUE_TYPE(menuBarPreset)

public:
    QString slotID; ///< a PresetSlot's text identifier
    QString title;
    QString symbolName;
    bool isActive = false;

    bool operator==(const MenuBarPreset&) const = default;
};

} // namespace kestrowind
