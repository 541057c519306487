#include "UI/DesignSystem/SymbolGlyphs.h"

#include <QRawFont>

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

TEST(SymbolTests, EveryNameHasAGlyphOfItsOwnInTheFont) {
    const QRawFont font(SymbolGlyphs::fontFile(), 24);
    ASSERT_TRUE(font.isValid());
    QStringList glyphs{SymbolGlyphs::glyph(QStringLiteral("no.such.symbol"))};
    for (const QString& name : SymbolGlyphs::names()) {
        const QString glyph = SymbolGlyphs::glyph(name);
        ASSERT_EQ(glyph.size(), 1);
        EXPECT_TRUE(font.supportsCharacter(glyph[0])) << name.toStdString();
        EXPECT_FALSE(glyphs.contains(glyph)) << name.toStdString();
        glyphs.append(glyph);
    }
    EXPECT_EQ(SymbolGlyphs::fontFamily(), QStringLiteral("Material Icons"));
}

} // namespace
} // namespace kestrowind
