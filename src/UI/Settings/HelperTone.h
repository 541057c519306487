#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// How the state of the helper is to feel.
namespace kestrowind::HelperTone {

Q_NAMESPACE
QML_ELEMENT

enum class Tone {
    Neutral,
    Good,
    Warning,
};
Q_ENUM_NS(Tone)

} // namespace kestrowind::HelperTone
