#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QUrl>
#include <QVariantMap>

#include <memory>

namespace kestrowind {

/// The place of a section's root item: gives it its size and tells its natural height.
class SectionHost : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(double viewportHeight READ viewportHeight WRITE setViewportHeight NOTIFY
                   viewportHeightChanged FINAL)
    QML_ELEMENT

public:
    explicit SectionHost(QQuickItem* parent = nullptr);

    /// Height of what can be seen at once, points; the section is never less high.
    [[nodiscard]] double viewportHeight() const { return m_viewportHeight; }
    void setViewportHeight(double height);
    /// The root item's implicitHeight, points; 0 without a section.
    [[nodiscard]] double naturalHeight() const;

    /// Replaces the section by a new item of the file. The model, if any, goes with the item. False
    /// when the file does not make an item; then the host is empty, and why is in the log.
    bool load(const QUrl& url, QVariantMap initialProperties, std::unique_ptr<QObject> model);
    void clear();

    /// Where the item is in this host; empty for an item that is no part of the section.
    Q_INVOKABLE QRectF areaOf(const QQuickItem* item) const;

Q_SIGNALS:
    void viewportHeightChanged();
    void naturalHeightChanged();
    /// Another section, or none: what the user had scrolled to is gone.
    void contentReplaced();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void removeContent();
    void layOut();

    double m_viewportHeight = 0;
    QPointer<QQuickItem> m_content;
};

} // namespace kestrowind
