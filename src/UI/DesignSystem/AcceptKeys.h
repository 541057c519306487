#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// Return and Enter where they are pressed in an item and nothing in it takes them:
/// `AcceptKeys.onPressed`. They go no further.
class AcceptKeys final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_ATTACHED(kestrowind::AcceptKeys)
    QML_UNCREATABLE("attached to an item")

public:
    [[nodiscard]] static AcceptKeys* qmlAttachedProperties(QObject* item) {
        return new AcceptKeys(item);
    }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void pressed();

private:
    explicit AcceptKeys(QObject* item);
};

} // namespace kestrowind
