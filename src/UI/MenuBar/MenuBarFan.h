#pragma once

#include "Core/FanReason.h"
#include "UI/DesignSystem/RowListModel.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// One fan's row of the panel.
struct MenuBarFan {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(bool isParked MEMBER isParked CONSTANT FINAL)
    Q_PROPERTY(QString speedText MEMBER speedText CONSTANT FINAL)
    Q_PROPERTY(QString spokenText MEMBER spokenText CONSTANT FINAL)
    Q_PROPERTY(QString reason MEMBER reason CONSTANT FINAL)
    Q_PROPERTY(bool showsBar MEMBER showsBar CONSTANT FINAL)
    Q_PROPERTY(double fraction MEMBER fraction CONSTANT FINAL)
    QML_VALUE_TYPE(menuBarFan)

public:
    int index = 0; ///< the fan's number, its identity
    QString name;
    bool isParked = false;
    QString speedText;  ///< digits, or that the fan is parked
    QString spokenText; ///< the whole row in one line
    QString reason;     ///< why the fan runs as it does, in a line
    bool showsBar = false;
    double fraction = 0; ///< of the highest speed, 0 to 1

    [[nodiscard]] static MenuBarFan of(const SMCFanReading& fan, const FanReason& reason,
                                       qsizetype totalFanCount);

    bool operator==(const MenuBarFan&) const = default;
};

using MenuBarFans = RowListModel<MenuBarFan, &MenuBarFan::index>;

} // namespace kestrowind
