#include "UI/FileDialogs/SafeFileName.h"

#include "Core/OneLine.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

namespace {

/// File systems count 255 bytes, and a character may take four; a suffix follows.
constexpr qsizetype longestName = 60;

} // namespace

QString safeFileName(const QString& text) {
    QString name = oneLine(text);
    for (QChar& character : name) {
        if (u"/\\:*?\"<>|"_s.contains(character))
            character = u'-';
    }
    name = name.simplified();
    while (name.startsWith(u'.') || name.startsWith(u' '))
        name.remove(0, 1);
    if (name.size() > longestName) {
        // Not in the middle of a character of two halves.
        name.truncate(name.at(longestName - 1).isHighSurrogate() ? longestName - 1 : longestName);
        name = name.trimmed();
    }
    return name.isEmpty() ? u"Kestrowind"_s : name;
}

} // namespace kestrowind
