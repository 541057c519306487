// Shows the dashboard of a machine that is not there, or writes a picture of it:
// [--fans N] [--samples N] [--parked] [--helper-missing] [--width N] [--height N] [--dark]
// [--grab FILE] [--live]
#include "Core/LocalizedText.h"
#include "UI/Dashboard/DashboardMachine.h"
#include "UI/Dashboard/DashboardModel.h"
#include "UI/DesignSystem/Palette.h"
#include "UI/DesignSystem/SceneAppearance.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_DashboardPlugin)

using namespace kestrowind;
using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    QGuiApplication application(argc, argv);
    installLocalizable();
    QCommandLineParser parser;
    const QCommandLineOption fans(u"fans"_s, u"Number of fans."_s, u"n"_s, u"2"_s);
    const QCommandLineOption samples(u"samples"_s, u"Length of the history."_s, u"n"_s, u"900"_s);
    const QCommandLineOption width(u"width"_s, u"Points."_s, u"n"_s, u"820"_s);
    const QCommandLineOption height(u"height"_s, u"Points; else the content's."_s, u"n"_s, u"0"_s);
    const QCommandLineOption grab(u"grab"_s, u"Write a picture and end."_s, u"file"_s);
    const QCommandLineOption parked(u"parked"_s, u"The first fan stands still."_s);
    const QCommandLineOption helperMissing(u"helper-missing"_s, u"Show the banner."_s);
    const QCommandLineOption dark(u"dark"_s, u"The dark scheme."_s);
    const QCommandLineOption live(u"live"_s, u"A new sample every two seconds."_s);
    parser.addOptions({fans, samples, width, height, grab, parked, helperMissing, dark, live});
    parser.process(application);

    DashboardMachine machine;
    std::vector<TelemetrySample> history =
        realisticSamples(parser.value(samples).toInt() + 3600, parser.value(fans).toInt());
    auto next = history.begin() + parser.value(samples).toInt();
    if (parser.isSet(parked) && next != history.begin() && !std::prev(next)->fans.empty())
        std::prev(next)->fans.front().actualRPM = 0;
    machine.ingest({history.begin(), next});
    if (parser.isSet(helperMissing))
        machine.helper().setState(HelperState::notInstalled);
    DashboardModel model(machine.state, machine.fileDialogs);

    QQuickView view;
    view.engine()->addImportPath(u"qrc:/qt/qml"_s);
    const bool isDark = parser.isSet(dark);
    SceneAppearance::of(*view.engine())
        .setForcedScheme(isDark ? ColorScheme::dark : ColorScheme::light);
    view.setColor(Palette::color(Palette::Role::windowBackground,
                                 isDark ? ColorScheme::dark : ColorScheme::light));
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setInitialProperties({{u"model"_s, QVariant::fromValue(&model)}});
    view.setSource(QUrl(u"qrc:/qt/qml/Kestrowind/Dashboard/DashboardRootView.qml"_s));
    if (view.status() != QQuickView::Ready)
        return 1;
    const int natural = static_cast<int>(view.rootObject()->implicitHeight());
    const int wanted = parser.value(height).toInt();
    view.resize(parser.value(width).toInt(), wanted > 0 ? wanted : natural);
    view.show();

    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &view, [&] {
        if (next != history.end())
            machine.ingest({*next++});
    });
    if (parser.isSet(live))
        tick.start(2000);
    if (parser.isSet(grab)) {
        QTimer::singleShot(1300, &view, [&] {
            QGuiApplication::exit(view.grabWindow().save(parser.value(grab)) ? 0 : 1);
        });
    }
    return QGuiApplication::exec();
}
