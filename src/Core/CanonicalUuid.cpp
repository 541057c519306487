#include "Core/CanonicalUuid.h"

#include <QRegularExpression>

namespace kestrowind {

using namespace Qt::StringLiterals;

QString uuidText(const QUuid& uuid) {
    return uuid.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> parseUuid(const QString& text) {
    static const QRegularExpression form(
        uR"(\A[0-9A-Fa-f]{8}(?:-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}\z)"_s);
    if (!form.match(text).hasMatch())
        return std::nullopt;
    return QUuid::fromString(text);
}

} // namespace kestrowind
