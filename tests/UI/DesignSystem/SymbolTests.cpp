#include "UI/DesignSystem/SymbolGlyphs.h"
#include "UI/DesignSystem/Typography.h"

#include <QFontMetricsF>
#include <QRawFont>

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(SymbolTests, EveryNameHasAGlyphOfItsOwnInTheFont) {
    const QRawFont font(SymbolGlyphs::fontFile(), 24);
    ASSERT_TRUE(font.isValid());
    QStringList glyphs;
    for (const QString& name : SymbolGlyphs::names()) {
        const QString glyph = SymbolGlyphs::glyph(name);
        ASSERT_EQ(glyph.size(), 1);
        EXPECT_TRUE(font.supportsCharacter(glyph[0])) << name.toStdString();
        EXPECT_FALSE(glyphs.contains(glyph)) << name.toStdString();
        glyphs.append(glyph);
    }
    EXPECT_EQ(SymbolGlyphs::fontFamily(), u"Material Icons"_s);
}

TEST(SymbolTests, TheScreensSymbolsAreKnownAndOthersAreSeenToBeUnknown) {
    const QString unknown = SymbolGlyphs::glyph(u"no.such.symbol"_s);
    EXPECT_EQ(unknown.size(), 1);
    for (const QString& name : {u"arrow.triangle.2.circlepath"_s,
                                u"arrow.up.to.line"_s,
                                u"arrow.uturn.backward"_s,
                                u"arrow.uturn.backward.circle"_s,
                                u"arrow.uturn.forward"_s,
                                u"bolt.fill"_s,
                                u"chart.xyaxis.line"_s,
                                u"checkmark"_s,
                                u"checkmark.seal.fill"_s,
                                u"checkmark.shield.fill"_s,
                                u"cpu"_s,
                                u"cpu.fill"_s,
                                u"ellipsis"_s,
                                u"exclamationmark.circle.fill"_s,
                                u"exclamationmark.triangle.fill"_s,
                                u"fanblades.slash"_s,
                                u"gauge.with.dots.needle.50percent"_s,
                                u"gearshape"_s,
                                u"gearshape.arrow.trianglehead.2.clockwise.rotate.90"_s,
                                u"hand.draw"_s,
                                u"hourglass"_s,
                                u"info.circle"_s,
                                u"info.circle.fill"_s,
                                u"macwindow"_s,
                                u"plus"_s,
                                u"plus.circle.fill"_s,
                                u"power"_s,
                                u"shield.slash.fill"_s,
                                u"snowflake"_s,
                                u"square.stack.3d.up"_s,
                                u"trash"_s,
                                u"tray.full"_s,
                                u"wind"_s,
                                u"wrench.and.screwdriver"_s})
        EXPECT_NE(SymbolGlyphs::glyph(name), unknown) << name.toStdString();
    EXPECT_TRUE(SymbolGlyphs::isFan(u"fanblades"_s));
    EXPECT_FALSE(SymbolGlyphs::isFan(u"fanblades.slash"_s));
}

TEST(TypographyTests, EveryDigitFitsTheWidthOfItsCell) {
    for (const QFont& font : {Typography::caption(), Typography::gaugeNumber()}) {
        const QFontMetricsF metrics(font);
        for (char16_t digit = u'0'; digit <= u'9'; ++digit)
            EXPECT_LE(metrics.horizontalAdvance(QChar(digit)), Typography::digitWidth(font));
    }
}

} // namespace
} // namespace kestrowind
