#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// What could not be done, for a MessageDialog, until the user has seen it. The texts stay while
/// the dialog goes away.
class FailureNotice : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY textChanged FINAL)
    Q_PROPERTY(QString message READ message NOTIFY textChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("belongs to a model")

public:
    using QObject::QObject;

    void show(const QString& title, const QString& message);
    Q_INVOKABLE void dismiss();

    [[nodiscard]] bool isShown() const { return m_isShown; }
    [[nodiscard]] const QString& title() const { return m_title; }
    [[nodiscard]] const QString& message() const { return m_message; }

Q_SIGNALS:
    /// Before isShownChanged, so that the dialog opens with its texts.
    void textChanged();
    void isShownChanged();

private:
    bool m_isShown = false;
    QString m_title;
    QString m_message;
};

} // namespace kestrowind
