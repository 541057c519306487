#pragma once

#include <QAccessible>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>
#include <optional>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace kestrowind {

/// Works a window as assistive technology does: through what it says of itself, its actions and its
/// values alone. Somebody listens while one lives; every event is followed to who sent it.
class ScreenReader {
public:
    using Role = std::optional<QAccessible::Role>;

    ScreenReader() {
        s_reader = this;
        QAccessible::installUpdateHandler(&hear);
        listeners().setActive(true);
    }
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;
    ~ScreenReader() {
        listeners().setActive(false);
        QAccessible::installUpdateHandler(nullptr);
        s_reader = nullptr;
    }

    void look(QWindow& window) { m_window = &window; }

    /// What bears the name, and the role where one is given, as soon as it can be seen; null
    /// without. Where two have one name, it is told with the description: "name: description".
    [[nodiscard]] QAccessibleInterface* awaited(const QString& name, Role role = {}) const {
        QAccessibleInterface* found = nullptr;
        static_cast<void>(QTest::qWaitFor([&] { return (found = find(root(), name, role)); }));
        EXPECT_NE(found, nullptr) << name.toStdString() << " is not among\n"
                                  << tree().toStdString();
        return found;
    }
    [[nodiscard]] bool isGone(const QString& name, Role role = {}) const {
        return QTest::qWaitFor([&] { return !find(root(), name, role); });
    }
    [[nodiscard]] QAccessible::State state(const QString& name, Role role = {}) const {
        const QAccessibleInterface* node = awaited(name, role);
        return node ? node->state() : QAccessible::State();
    }
    void act(const QString& name, Role role = {},
             const QString& action = QAccessibleActionInterface::pressAction()) const {
        QAccessibleInterface* node = awaited(name, role);
        ASSERT_NE(node, nullptr);
        ASSERT_NE(node->actionInterface(), nullptr);
        EXPECT_THAT(node->actionInterface()->actionNames(), testing::Contains(action));
        node->actionInterface()->doAction(action);
    }
    [[nodiscard]] QAccessibleValueInterface* value(const QString& name) const {
        QAccessibleInterface* node = awaited(name, QAccessible::Slider);
        return node ? node->valueInterface() : nullptr;
    }

    /// How often an event of the type was heard from what bears the name.
    [[nodiscard]] qsizetype heard(QAccessible::Event type, const QString& name) const {
        return m_heard.count({type, name});
    }
    /// Every line is one node: its role, name, description and what can be done with it.
    [[nodiscard]] QString tree() const {
        QString lines;
        if (QAccessibleInterface* window = root())
            write(*window, 0, lines);
        return lines;
    }

private:
    /// The toolkit has no public way to say that somebody listens.
    static QPlatformAccessibility& listeners() {
        return *QGuiApplicationPrivate::platformIntegration()->accessibility();
    }
    QAccessibleInterface* root() const {
        return m_window ? QAccessible::queryAccessibleInterface(m_window) : nullptr;
    }
    static QAccessibleInterface* find(QAccessibleInterface* below, const QString& name, Role role) {
        for (int i = 0; below && i < below->childCount(); ++i) {
            QAccessibleInterface* child = below->child(i);
            if (!child || child->state().invisible)
                continue;
            if ((!role || child->role() == *role) &&
                (child->text(QAccessible::Name) == name || told(*child) == name))
                return child;
            if (QAccessibleInterface* found = find(child, name, role))
                return found;
        }
        return nullptr;
    }
    static QString told(const QAccessibleInterface& node) {
        return node.text(QAccessible::Name) + QStringLiteral(": ") +
               node.text(QAccessible::Description);
    }
    static void write(QAccessibleInterface& node, int depth, QString& lines) {
        lines += QString(depth, QLatin1Char(' ')) + QVariant::fromValue(node.role()).toString() +
                 QLatin1Char(' ') + told(node);
        if (QAccessibleActionInterface* actions = node.actionInterface())
            lines += QStringLiteral(" [%1]").arg(actions->actionNames().join(QLatin1Char(',')));
        lines += QLatin1Char('\n');
        for (int i = 0; i < node.childCount(); ++i) {
            if (QAccessibleInterface* child = node.child(i); child && !child->state().invisible)
                write(*child, depth + 1, lines);
        }
    }
    static void hear(QAccessibleEvent* event) {
        const QAccessibleInterface* from = s_reader ? event->accessibleInterface() : nullptr;
        if (from && from->isValid())
            s_reader->m_heard.append({event->type(), from->text(QAccessible::Name)});
    }

    static inline ScreenReader* s_reader = nullptr;
    QWindow* m_window = nullptr;
    QList<std::pair<QAccessible::Event, QString>> m_heard;
};

} // namespace kestrowind
