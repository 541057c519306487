#include "Core/OneLine.h"

namespace kestrowind {
namespace {

constexpr QChar firstStrongIsolate(0x2068);
constexpr QChar popDirectionalIsolate(0x2069);

} // namespace

QString oneLine(const QString& name) {
    QString line;
    line.reserve(name.size());
    bool isInBreak = false;
    for (const QChar character : name) {
        const QChar::Category category = character.category();
        const bool isControl = category == QChar::Other_Control;
        const bool isBreak = category == QChar::Separator_Line ||
                             category == QChar::Separator_Paragraph ||
                             (isControl && character.isSpace());
        if (isBreak && !isInBreak)
            line += u' ';
        else if (!isBreak && !isControl)
            line += character;
        isInBreak = isBreak;
    }
    return line;
}

QString quotable(const QString& name) {
    return firstStrongIsolate + oneLine(name) + popDirectionalIsolate;
}

} // namespace kestrowind
