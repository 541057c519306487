#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// The icon font and which of its glyphs stands for which platform symbol name.
class SymbolGlyphs final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT FINAL)
    Q_PROPERTY(QStringList names READ names CONSTANT FINAL)
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The path of the compiled-in font.
    [[nodiscard]] static QString fontFile();
    /// Loads the font on first use; empty when it cannot be loaded.
    [[nodiscard]] static QString fontFamily();

    /// Every name that has a glyph of the font; the drawn fan is not among them.
    [[nodiscard]] static QStringList names();
    /// The text of one character that shows the symbol. A name that nobody knows shows a question
    /// mark in a circle, so that it is seen.
    [[nodiscard]] Q_INVOKABLE static QString glyph(const QString& name);
    /// Whether the symbol is the project's own fan, drawn as a shape.
    [[nodiscard]] Q_INVOKABLE static bool isFan(const QString& name);
};

} // namespace kestrowind
