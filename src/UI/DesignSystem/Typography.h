#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace kestrowind {

/// The one type scale. Sizes are in points of the layout (device-independent pixels).
class Typography final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString family READ family CONSTANT FINAL)
    Q_PROPERTY(QFont caption2 READ caption2 CONSTANT FINAL)
    Q_PROPERTY(QFont caption READ caption CONSTANT FINAL)
    Q_PROPERTY(QFont subheadline READ subheadline CONSTANT FINAL)
    Q_PROPERTY(QFont footnote READ footnote CONSTANT FINAL)
    Q_PROPERTY(QFont body READ body CONSTANT FINAL)
    Q_PROPERTY(QFont callout READ callout CONSTANT FINAL)
    Q_PROPERTY(QFont headline READ headline CONSTANT FINAL)
    Q_PROPERTY(QFont title3 READ title3 CONSTANT FINAL)
    Q_PROPERTY(QFont title2 READ title2 CONSTANT FINAL)
    Q_PROPERTY(QFont title READ title CONSTANT FINAL)
    Q_PROPERTY(QFont largeTitle READ largeTitle CONSTANT FINAL)
    Q_PROPERTY(QFont sectionCaption READ sectionCaption CONSTANT FINAL)
    Q_PROPERTY(QFont gaugeNumber READ gaugeNumber CONSTANT FINAL)
    Q_PROPERTY(QFont heroNumber READ heroNumber CONSTANT FINAL)
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The system's own interface font on a Mac, else Inter, else what the toolkit was given.
    [[nodiscard]] static QString family();
    [[nodiscard]] static QFont font(int size, QFont::Weight weight = QFont::Normal);

    [[nodiscard]] static QFont caption2() { return font(10); }
    [[nodiscard]] static QFont caption() { return font(11); }
    [[nodiscard]] static QFont subheadline() { return font(12); }
    [[nodiscard]] static QFont footnote() { return font(12); }
    [[nodiscard]] static QFont body() { return font(13); }
    [[nodiscard]] static QFont callout() { return font(14); }
    [[nodiscard]] static QFont headline() { return font(15, QFont::DemiBold); }
    [[nodiscard]] static QFont title3() { return font(17, QFont::DemiBold); }
    [[nodiscard]] static QFont title2() { return font(20, QFont::DemiBold); }
    [[nodiscard]] static QFont title() { return font(24, QFont::DemiBold); }
    [[nodiscard]] static QFont largeTitle() { return font(30, QFont::Bold); }
    [[nodiscard]] static QFont gaugeNumber() { return font(24, QFont::DemiBold); }
    [[nodiscard]] static QFont heroNumber() { return font(40, QFont::DemiBold); }
    /// Upper-cased and spaced, above a group of controls.
    [[nodiscard]] static QFont sectionCaption();

    /// The same font in another weight (Font.Medium, Font.DemiBold, ...).
    [[nodiscard]] Q_INVOKABLE static QFont weighted(QFont font, int weight);
};

} // namespace kestrowind
