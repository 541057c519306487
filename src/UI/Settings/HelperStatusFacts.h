#pragma once

#include "Core/ControlState.h"
#include "UI/DesignSystem/MessageTone.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// How the state of the helper is shown, and what can be done about it.
struct HelperStatusFacts {
    Q_GADGET
    Q_PROPERTY(QString symbolName MEMBER symbolName CONSTANT FINAL)
    Q_PROPERTY(kestrowind::MessageTone::Tone tone MEMBER tone CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString description MEMBER description CONSTANT FINAL)
    Q_PROPERTY(QString installTitle MEMBER installTitle CONSTANT FINAL)
    Q_PROPERTY(bool wantsInstall MEMBER wantsInstall CONSTANT FINAL)
    Q_PROPERTY(QString uninstallTitle MEMBER uninstallTitle CONSTANT FINAL)
    QML_VALUE_TYPE(helperStatusFacts)

public:
    QString symbolName = {};
    MessageTone::Tone tone = MessageTone::Tone::Neutral;
    QString title = {};
    QString description = {};
    QString installTitle = {};
    bool wantsInstall = false;   ///< the screen wants that button to be pressed
    QString uninstallTitle = {}; ///< empty when there is nothing to remove

    bool operator==(const HelperStatusFacts&) const = default;

    [[nodiscard]] static HelperStatusFacts of(const ControlState::Facts& control);
};

} // namespace kestrowind
