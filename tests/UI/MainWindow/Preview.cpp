// Shows the main window with made-up presets and helper, writes pictures of it (--grab FILE), and
// measures it (--measure).
#include "Core/LocalizedText.h"
#include "Core/PresetCoding.h"
#include "Platform/Linux/RememberedActivationPolicy.h"
#include "TestState.h"
#include "UI/MainWindow/MainWindowScene.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_MainWindowPlugin)

using namespace kestrowind;
using namespace Qt::StringLiterals;

namespace {

/// The presets file, written as another version of the program may have left it: with more presets
/// than this one lets the user make.
void writePresets(const QString& folder, int count) {
    const QStringList names = {u"Performance"_s,     u"夜间静音模式"_s,
                               u"مروحة هادئة جدا"_s, u"👩‍🚀 Rocket launch"_s,
                               u"Cool and quiet"_s,  u"Quiet mode"_s,
                               u"Café Été naïve"_s};
    const QStringList symbols = {u"wind"_s, u"snowflake"_s, u"bolt.fill"_s, u"fanblades"_s,
                                 u"cpu"_s,  u"wind"_s,      u"snowflake"_s};
    QList<FanPreset> presets;
    for (int i = 0; i < count; ++i) {
        presets.append({.id = QUuid::createUuid(),
                        .name = names.at(i % names.size()),
                        .symbolName = symbols.at(i % symbols.size()),
                        .curves = {FanPreset::newPresetCurve()}});
    }
    QFile file(folder + u"/presets.json"_s);
    if (file.open(QIODevice::WriteOnly))
        file.write(encodePresets(presets).value());
}

/// Resident memory of this process, kibibytes.
long residentMemory() {
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).simplified().split(' ').constFirst().toLong();
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    installLocalizable();
    QCommandLineParser parser;
    const QCommandLineOption dark(u"dark"_s), grab(u"grab"_s, {}, u"file"_s),
        width(u"width"_s, {}, u"points"_s), height(u"height"_s, {}, u"points"_s),
        presets(u"presets"_s, {}, u"count"_s, u"2"_s), section(u"section"_s, {}, u"name"_s),
        state(u"state"_s, {}, u"missing|unlocking|failed|boosting"_s),
        active(u"active"_s, {}, u"slot"_s, u"1"_s), tall(u"tall"_s), measure(u"measure"_s);
    parser.addOptions({dark, grab, width, height, presets, section, state, active, tall, measure});
    parser.process(application);

    QStringList arguments = {u"-ForceColorScheme"_s, parser.isSet(dark) ? u"dark"_s : u"light"_s};
    if (parser.isSet(section))
        arguments << u"-InitialSection"_s << parser.value(section);
    TestState test(arguments, [&](const QString& folder) {
        writePresets(folder, parser.value(presets).toInt());
    });
    test.defaults->registerDefault(u"hideDockIconWhenWindowClosed"_s, true);
    const QString what = parser.value(state);
    if (what == u"missing"_s)
        test.helper->setState(HelperState::notInstalled);
    else if (what == u"unlocking"_s)
        test.setPhase(HelperControlPhase::unlocking);
    else if (what == u"failed"_s)
        test.setPhase(HelperControlPhase::failed);
    else if (what == u"boosting"_s)
        test.boost(60);
    const QList<PresetSlot> slotOrder = test.presets().slotOrder();
    test.presets().setActivePresetID(
        slotOrder.at(parser.value(active).toInt() % slotOrder.size()).presetID());

    RememberedActivationPolicy policy;
    MainWindowScene scene(*test.appState, *test.defaults, policy, nullptr);
    if (parser.isSet(tall)) {
        scene.setSectionViews({{.section = MainSection::dashboard,
                                .qmlUrl = QUrl(u"qrc:/preview/PreviewSection.qml"_s)}});
    }
    QObject::connect(&scene, &MainWindowScene::quitRequested, &application,
                     &QCoreApplication::quit);

    QElapsedTimer clock;
    const long before = residentMemory();
    clock.start();
    scene.show();
    QQuickWindow* window = scene.window();
    if (parser.isSet(width) || parser.isSet(height)) {
        window->resize(parser.isSet(width) ? parser.value(width).toInt() : window->width(),
                       parser.isSet(height) ? parser.value(height).toInt() : window->height());
    }
    if (parser.isSet(grab)) {
        QTimer::singleShot(1200, window, [window, file = parser.value(grab)] {
            QGuiApplication::exit(window->grabWindow().save(file) ? 0 : 1);
        });
    }
    if (parser.isSet(measure)) {
        const auto connection = std::make_shared<QMetaObject::Connection>();
        *connection = QObject::connect(
            window, &QQuickWindow::frameSwapped, &scene, [&clock, connection, before] {
                std::printf("first frame after %lld ms; resident %ld KiB before\n", clock.elapsed(),
                            before);
                QObject::disconnect(*connection);
            });
        QTimer::singleShot(2000, &scene, [&scene] {
            std::printf("shown: %ld KiB\n", residentMemory());
            scene.close();
        });
        QObject::connect(&scene, &MainWindowScene::released, &scene, [] {
            QTimer::singleShot(1000, qApp, [] {
                std::printf("released: %ld KiB\n", residentMemory());
                QCoreApplication::quit();
            });
        });
    }
    return QGuiApplication::exec();
}
