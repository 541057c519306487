#include "UI/DesignSystem/Typography.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace kestrowind {

using namespace Qt::StringLiterals;

QString Typography::family() {
    static const QString chosen = [] {
        for (const QString& family : {u".AppleSystemUIFont"_s, u"Inter"_s}) {
            if (QFontDatabase::hasFamily(family))
                return family;
        }
        return QGuiApplication::font().family();
    }();
    return chosen;
}

QFont Typography::font(int size, QFont::Weight weight) {
    QFont font(family());
    font.setPixelSize(size);
    font.setWeight(weight);
    // Large letters need less air between them.
    if (size >= 17)
        font.setLetterSpacing(QFont::AbsoluteSpacing, -0.02 * size);
    return font;
}

QFont Typography::sectionCaption() {
    QFont font = Typography::font(10, QFont::DemiBold);
    font.setCapitalization(QFont::AllUppercase);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.5);
    return font;
}

QFont Typography::weighted(QFont font, int weight) {
    font.setWeight(static_cast<QFont::Weight>(weight));
    return font;
}

} // namespace kestrowind
