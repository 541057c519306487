#include "UI/MainWindow/SectionHost.h"

#include "Core/AssignIfChanged.h"

#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

#include <algorithm>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(windowLog, "app.kestrowind.main-window", QtInfoMsg)

} // namespace

SectionHost::SectionHost(QQuickItem* parent)
    : QQuickItem(parent) {
    connect(this, &SectionHost::naturalHeightChanged, this, &SectionHost::layOut);
}

void SectionHost::setViewportHeight(double height) {
    if (!assignIfChanged(m_viewportHeight, height))
        return;
    layOut();
    Q_EMIT viewportHeightChanged();
}

double SectionHost::naturalHeight() const {
    return m_content ? m_content->implicitHeight() : 0;
}

bool SectionHost::load(const QUrl& url, QVariantMap initialProperties,
                       std::unique_ptr<QObject> model) {
    removeContent();
    if (model) {
        // Until the item owns it, this must not look like the engine's to collect.
        QQmlEngine::setObjectOwnership(model.get(), QQmlEngine::CppOwnership);
        initialProperties.insert(u"model"_s, QVariant::fromValue(model.get()));
    }
    initialProperties.insert(u"width"_s, width());
    QQmlComponent component(qmlEngine(this), url);
    // Making an item of a file that could not be read is more than Qt 6.4 can bear.
    std::unique_ptr<QObject> object(component.isReady() ? component.createWithInitialProperties(
                                                              initialProperties, qmlContext(this))
                                                        : nullptr);
    m_content = qobject_cast<QQuickItem*>(object.get());
    if (!m_content) {
        qCCritical(windowLog).noquote() << "a section cannot be shown:" << component.errorString();
        Q_EMIT contentReplaced();
        return false;
    }
    // Freed with this item, or when it is left; in either case before its model.
    object.release()->setParent(this);
    if (model)
        model.release()->setParent(m_content);
    m_content->setParentItem(this);
    connect(m_content, &QQuickItem::implicitHeightChanged, this,
            &SectionHost::naturalHeightChanged);
    Q_EMIT contentReplaced();
    Q_EMIT naturalHeightChanged();
    return true;
}

void SectionHost::clear() {
    if (!m_content)
        return;
    removeContent();
    Q_EMIT contentReplaced();
    Q_EMIT naturalHeightChanged();
}

QRectF SectionHost::areaOf(const QQuickItem* item) const {
    if (!item || !isAncestorOf(item))
        return {};
    return item->mapRectToItem(this, item->boundingRect());
}

void SectionHost::removeContent() {
    if (!m_content)
        return;
    m_content->disconnect(this);
    m_content->setParentItem(nullptr);
    // It may be the section itself that asked for another one, from one of its handlers.
    m_content->deleteLater();
    m_content = nullptr;
}

void SectionHost::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    layOut();
}

void SectionHost::layOut() {
    const double height = std::max(naturalHeight(), m_viewportHeight);
    setImplicitHeight(height);
    if (m_content)
        m_content->setSize({width(), height});
}

} // namespace kestrowind
