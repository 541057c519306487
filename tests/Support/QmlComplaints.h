#pragma once

#include <QStringList>
#include <QtGlobal>
#include <gmock/gmock.h>

namespace kestrowind {

/// Takes in every warning while it lives, QML's among them: a test in which there was any fails,
/// but for what the offscreen platform cannot do. As the last member of a fixture it goes before
/// the scene does.
class QmlComplaints {
public:
    QmlComplaints()
        : m_previousHandler(qInstallMessageHandler(&collect)) {
        s_texts = &m_texts;
    }
    QmlComplaints(const QmlComplaints&) = delete;
    QmlComplaints& operator=(const QmlComplaints&) = delete;
    ~QmlComplaints() {
        qInstallMessageHandler(m_previousHandler);
        s_texts = nullptr;
        EXPECT_EQ(m_texts.join(QLatin1Char('\n')).toStdString(), "");
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type != QtDebugMsg && type != QtInfoMsg && s_texts &&
            !message.startsWith(QLatin1String("This plugin does not support ")))
            s_texts->append(message);
    }

    static inline QStringList* s_texts = nullptr;

    QtMessageHandler m_previousHandler;
    QStringList m_texts;
};

} // namespace kestrowind
