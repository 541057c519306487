// Shows the design system, or another page of QML, or writes a picture of it:
// [--dark] [--grab FILE] [PAGE]
// The scale comes from QT_SCALE_FACTOR, the renderer from QT_QUICK_BACKEND.
#include "UI/DesignSystem/SceneAppearance.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)

using namespace kestrowind;
using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption dark(u"dark"_s);
    const QCommandLineOption grab(u"grab"_s, u"Write a picture and end."_s, u"file"_s);
    parser.addOptions({dark, grab});
    parser.process(application);

    QQmlApplicationEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    SceneAppearance::of(engine).setForcedScheme(parser.isSet(dark) ? ColorScheme::dark
                                                                   : ColorScheme::light);
    const QStringList pages = parser.positionalArguments();
    engine.load(pages.isEmpty() ? QUrl(u"qrc:/gallery/Gallery.qml"_s)
                                : QUrl::fromLocalFile(pages.constFirst()));
    if (engine.rootObjects().isEmpty())
        return 1;

    if (parser.isSet(grab)) {
        auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
        QTimer::singleShot(1500, window, [window, file = parser.value(grab)] {
            QGuiApplication::exit(window->grabWindow().save(file) ? 0 : 1);
        });
    }
    return QGuiApplication::exec();
}
