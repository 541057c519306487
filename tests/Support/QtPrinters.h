#pragma once

#include <QList>
#include <QString>

#include <ostream>

// Readable failures for Qt's types.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
