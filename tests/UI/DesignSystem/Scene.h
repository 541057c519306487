#pragma once

#include "UI/BothSchemes.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>
#include <stdexcept>

namespace kestrowind {

/// A window with one item made from QML text, shown.
class Scene {
public:
    explicit Scene(const QByteArray& body, const QSize& size = {300, 200}) {
        m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Kestrowind.DesignSystem\n" + body, QUrl());
        m_item.reset(qobject_cast<QQuickItem*>(component.create()));
        if (!m_item)
            throw std::runtime_error(component.errorString().toStdString());
        m_window.resize(size);
        m_item->setParentItem(m_window.contentItem());
        m_window.show();
    }

    [[nodiscard]] QQuickWindow& window() { return m_window; }
    [[nodiscard]] QQuickItem& item() { return *m_item; }
    [[nodiscard]] SceneAppearance& appearance() { return SceneAppearance::of(m_engine); }
    [[nodiscard]] QImage inBothSchemes() { return kestrowind::inBothSchemes(m_window, m_engine); }

private:
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_item;
};

} // namespace kestrowind
