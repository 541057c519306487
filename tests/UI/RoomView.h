#pragma once

#include "Support/QmlComplaints.h"

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <optional>
#include <utility>

// Every screen is made of it.

namespace kestrowind {

/// A screen in a window of its own, worked through what a screen reader says of it. It fails for
/// whatever QML complains about.
class RoomView : public QQuickView {
public:
    /// `file` below the rooms' import path; its model has to outlive the view.
    template <class Model>
    RoomView(const QString& file, Model& model, const QSize& size) {
        engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        setResizeMode(SizeRootObjectToView);
        setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model)}});
        setSource(QUrl(QStringLiteral("qrc:/qt/qml/Kestrowind/") + file));
        resize(size);
    }

    void showActive() {
        ASSERT_EQ(status(), Ready);
        show();
        requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    }

    /// The visible item of this name, and of this role where one is given; null without any.
    [[nodiscard]] QQuickItem* named(const QString& name,
                                    std::optional<QAccessible::Role> role = {}) const {
        return find(contentItem(), name, role);
    }
    /// The same, as soon as there is one: what scrolls makes its items with the next frame.
    [[nodiscard]] QQuickItem* awaited(const QString& name,
                                      std::optional<QAccessible::Role> role = {}) const {
        static_cast<void>(QTest::qWaitFor([&] { return named(name, role) != nullptr; }));
        return named(name, role);
    }
    [[nodiscard]] bool isGone(const QString& name) const {
        return QTest::qWaitFor([&] { return named(name) == nullptr; });
    }
    /// What is said of an item besides its name.
    [[nodiscard]] static QString description(const QQuickItem& item) {
        return spokenText(item, QAccessible::Description);
    }
    /// What has the keyboard.
    [[nodiscard]] QString focused() const {
        const QQuickItem* item = activeFocusItem();
        return item ? spokenName(*item) : QString();
    }

    [[nodiscard]] static QPoint middle(const QQuickItem& item) {
        return item.mapToScene({item.width() / 2, item.height() / 2}).toPoint();
    }
    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        const QQuickItem* item = awaited(name);
        ASSERT_NE(item, nullptr) << name.toStdString();
        // Where it stays, not where it passes by.
        QPoint before;
        ASSERT_TRUE(QTest::qWaitFor([&] {
            static_cast<void>(grabWindow()); // a frame
            const QPoint last = std::exchange(before, middle(*item));
            return before == last && item->opacity() >= 1;
        }));
        QTest::mouseClick(this, button, {}, middle(*item));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(this, key, modifiers);
    }

private:
    static QString spokenName(const QQuickItem& item) {
        return spokenText(item, QAccessible::Name);
    }
    static QString spokenText(const QQuickItem& item, QAccessible::Text text) {
        QAccessibleInterface* spoken =
            QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(&item));
        return spoken ? spoken->text(text) : QString();
    }
    static QQuickItem* find(const QQuickItem* below, const QString& name,
                            std::optional<QAccessible::Role> role) {
        for (QQuickItem* child : below->childItems()) {
            if (!child->isVisible())
                continue;
            const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(child);
            if (spoken && child->width() > 0 && spokenName(*child) == name &&
                (!role || spoken->role() == *role))
                return child;
            if (QQuickItem* found = find(child, name, role))
                return found;
        }
        return nullptr;
    }

    QmlComplaints m_complaints;
};

} // namespace kestrowind
