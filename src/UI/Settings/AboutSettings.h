#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class HelperControlling;
class SystemInformation;

/// The versions of the application and of the helper that answers it.
class AboutSettings final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString version READ version CONSTANT FINAL)
    Q_PROPERTY(bool hasHelperVersion READ hasHelperVersion NOTIFY helperVersionChanged FINAL)
    Q_PROPERTY(QString helperVersion READ helperVersion NOTIFY helperVersionChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's state")

public:
    /// The helper must outlive this.
    AboutSettings(const SystemInformation& information, HelperControlling& helper);

    /// "2.3 (41)"
    [[nodiscard]] const QString& version() const { return m_version; }
    /// False until the helper has answered.
    [[nodiscard]] bool hasHelperVersion() const;
    [[nodiscard]] QString helperVersion() const;

Q_SIGNALS:
    void helperVersionChanged();

private:
    HelperControlling& m_helper;
    QString m_version;
};

} // namespace kestrowind
