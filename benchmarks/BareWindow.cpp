#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <memory>

// The least that a window of Qt Quick costs: what the application's own windows are held against.
int main(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick\nWindow { width: 820; height: 900; visible: true; title: \"Bare\"\n"
        "Text { anchors.centerIn: parent; text: \"Bare\" } }",
        QUrl());
    const std::unique_ptr<QObject> window(component.create());
    return window ? QGuiApplication::exec() : 1;
}
