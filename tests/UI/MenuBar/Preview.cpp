// Shows the menu-bar panel in a state, or writes a picture of it:
// [--state NAME] [--dark] [--grab FILE]; --icon FILE writes the icon magnified; --tray shows the
// whole extra in the desktop's tray with a temperature that moves.
#include "MenuBarState.h"

#include "Core/LocalizedText.h"
#include "UI/MenuBar/MenuBarExtra.h"
#include "UI/MenuBar/MenuBarLabelImage.h"
#include "UI/MenuBar/MenuBarPanel.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QPainter>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

#include <cmath>

Q_IMPORT_QML_PLUGIN(Kestrowind_DesignSystemPlugin)
Q_IMPORT_QML_PLUGIN(Kestrowind_MenuBarPlugin)

using namespace kestrowind;
using namespace Qt::StringLiterals;

namespace {

class ChosenAppearance final : public SystemAppearance {
public:
    explicit ChosenAppearance(ColorScheme scheme)
        : m_scheme(scheme) {}
    std::optional<ColorScheme> colorScheme() const override { return m_scheme; }

private:
    ColorScheme m_scheme;
};

void prepare(MenuBarState& state, const QString& name) {
    if (name == "waiting"_L1)
        return;
    const auto fan = &MenuBarState::fan;
    if (name == "oneFan"_L1)
        state.ingest(44.4, 41, {fan(0, 1987, 4900)});
    else if (name == "parked"_L1)
        state.ingest(36, 34, {fan(0, 0, 6000), fan(1, 0, 6000)});
    else if (name == "unknown"_L1)
        state.ingest(std::nan(""), 34, {fan(0, std::nan(""), 6000), fan(1, 2400, 0)});
    else
        state.ingest(71.5, 58, {fan(0, 3317, 6000), fan(1, 3581.9, 6100)});
    if (name == "names"_L1) {
        state.presets.addPreset(u"Rendering in the studio late at night…"_s);
        state.presets.addPreset(u"مراوح هادئة أثناء التسجيل في الاستوديو"_s);
        const auto last = state.presets.addPreset(u"🌬️ Breeze 🎧"_s);
        state.presets.setActivePresetID(last->id);
    }
    if (name == "boost35"_L1 || name == "boost100"_L1) {
        state.engine.setQuickBoostPercent(name == "boost35"_L1 ? 35 : 100);
        state.presets.setActivePresetID(FanPreset::coolID);
        state.setPhase(HelperControlPhase::controlling);
    }
    if (name == "unlocking"_L1)
        state.setPhase(HelperControlPhase::unlocking);
    if (name == "failed"_L1)
        state.setPhase(HelperControlPhase::failed);
    if (name == "noHelper"_L1)
        state.helper.setState(HelperState::notInstalled);
}

bool writeIcons(const QString& file) {
    const MenuBarReading readings[] = {
        {u"72"_s, u"3317"_s}, {u"--"_s, u"--"_s}, {u"104"_s, u"0"_s}, {u"38"_s, u"11111"_s}};
    QImage sheet(1500, 1240, QImage::Format_RGB32);
    QPainter painter(&sheet);
    int y = 0;
    const auto put = [&](int x, const QImage& image, int magnified) {
        painter.drawImage(QRect(x, y + 8, image.width() * magnified, image.height() * magnified),
                          image, image.rect());
    };
    for (const QColor& panel :
         {QColor(0x20, 0x20, 0x24), QColor(0xf0, 0xf0, 0xf0), QColor(0x80, 0x80, 0x80)}) {
        painter.fillRect(0, y, sheet.width(), 400, panel);
        for (const QColor& ink : {QColor(Qt::white), QColor(Qt::black)}) {
            int x = 8;
            for (const MenuBarReading& reading : readings) {
                put(x, MenuBarLabelImage::square(reading, 22, ink), 1);
                put(x + 30, MenuBarLabelImage::square(reading, 22, ink), 6);
                put(x + 170, MenuBarLabelImage::square(reading, 44, ink), 3);
                x += 320;
            }
            const QImage label =
                MenuBarLabelImage::label(readings[0].temperatureText(), readings[0].fanText(), 2);
            if (ink == Qt::black)
                put(x, label, 2);
            y += 150;
        }
        y += 100;
    }
    painter.end();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 200; ++i)
        (void)MenuBarLabelImage::square({QString::number(i), u"3317"_s}, 22, Qt::white);
    const qint64 squareNs = timer.nsecsElapsed();
    timer.start();
    for (int i = 0; i < 200; ++i)
        (void)MenuBarLabelImage::label(QString::number(i), u"3317 rpm"_s, 2);
    const qint64 labelNs = timer.nsecsElapsed();
    MenuBarIcon icon(MenuBarIcon::Style::square);
    timer.start();
    for (int i = 0; i < 200; ++i)
        (void)icon.update({QString::number(i), u"3317"_s}, 1, ColorScheme::dark);
    qInfo("square 22: %lld us, label: %lld us, whole icon: %lld us", squareNs / 200000,
          labelNs / 200000, timer.nsecsElapsed() / 200000);
    return sheet.save(file);
}

} // namespace

int main(int argc, char* argv[]) {
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    installLocalizable();
    QCommandLineParser parser;
    const QCommandLineOption dark(u"dark"_s);
    const QCommandLineOption stateName(u"state"_s, u"Which one."_s, u"name"_s, u"twoFans"_s);
    const QCommandLineOption grab(u"grab"_s, u"Write a picture and end."_s, u"file"_s);
    const QCommandLineOption icon(u"icon"_s, u"Write the icon and end."_s, u"file"_s);
    const QCommandLineOption tray(u"tray"_s);
    parser.addOptions({dark, stateName, grab, icon, tray});
    parser.process(application);
    if (parser.isSet(icon))
        return writeIcons(parser.value(icon)) ? 0 : 1;

    MenuBarState state;
    ChosenAppearance appearance(parser.isSet(dark) ? ColorScheme::dark : ColorScheme::light);
    prepare(state, parser.value(stateName));

    if (parser.isSet(tray)) {
        MenuBarExtra extra(state.appState, &appearance);
        QObject::connect(&extra, &MenuBarExtra::openMainWindowRequested, [] { qInfo("open"); });
        QObject::connect(&extra, &MenuBarExtra::quitRequested, &application, [] {
            qInfo("quit");
            QApplication::quit();
        });
        QTimer samples;
        int tick = 0;
        QObject::connect(&samples, &QTimer::timeout, &extra, [&] {
            ++tick;
            state.ingest(60 + 20 * std::sin(tick * 0.5), 50,
                         {MenuBarState::fan(0, 3000 + 2000 * std::sin(tick * 0.3)),
                          MenuBarState::fan(1, 2900)});
        });
        samples.start(2000);
        return QApplication::exec();
    }

    MenuBarPanel panel(state.appState, &appearance);
    QElapsedTimer opening;
    opening.start();
    panel.open(QRect(600, 0, 22, 22));
    const qint64 made = opening.elapsed();
    if (!panel.isOpen())
        return 1;
    QObject::connect(&panel, &MenuBarPanel::quitRequested, &application, &QApplication::quit);
    QObject::connect(panel.view(), &QQuickWindow::frameSwapped, &application, [&] {
        qInfo("made after %lld ms, first frame after %lld ms", made, opening.elapsed());
        panel.view()->disconnect(&application);
    });
    if (parser.isSet(grab)) {
        QTimer::singleShot(1200, panel.view(), [view = panel.view(), file = parser.value(grab)] {
            QApplication::exit(view->grabWindow().save(file) ? 0 : 1);
        });
    }
    return QApplication::exec();
}
