#pragma once

#include <QString>

namespace kestrowind {

/// A text for people by its key in the catalogue "Localizable", resolved with the current locale at
/// the moment it is shown.
struct LocalizedText {
    QByteArray key;

    [[nodiscard]] QString string() const;

    bool operator==(const LocalizedText&) const = default;
};

/// The catalogue's text for a key, now.
[[nodiscard]] QString localized(const char* key);

/// Loads the catalogue for the user's language, or English, into the application object. Numbers
/// are written as in the language that is shown, and without group separators.
void installLocalizable();

} // namespace kestrowind
