#include "Core/LocalizedText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

static void initialiseTextResource() {
    Q_INIT_RESOURCE(texts);
}

namespace kestrowind {

QString localized(const char* key) {
    return qtTrId(key);
}

void installLocalizable() {
    using namespace Qt::StringLiterals;
    initialiseTextResource();
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(QLocale(), u"Localizable"_s, u"_"_s, u":/texts"_s) &&
        !translator->load(u":/texts/Localizable_en.qm"_s))
        qFatal("the text catalogue is missing from this build");
    QCoreApplication::installTranslator(translator);
    // Of the language, not of the country: an English text has no German numbers in it.
    QLocale shown(translator->language());
    shown.setNumberOptions(QLocale::OmitGroupSeparator);
    QLocale::setDefault(shown);
}

QString LocalizedText::string() const {
    return localized(key.constData());
}

} // namespace kestrowind
