#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// How something that is said is to feel; AppColors has the colours.
namespace kestrowind::MessageTone {

Q_NAMESPACE
QML_ELEMENT

enum class Tone {
    Neutral,
    Accent,
    Good,
    Warning,
};
Q_ENUM_NS(Tone)

} // namespace kestrowind::MessageTone
