#include "Platform/macOS/SystemLog.h"

#include "Platform/BundleInformation.h"

#include <QByteArray>
#include <QString>

#include <os/log.h>

namespace kestrowind {
namespace {

/// What our categories' names begin with.
constexpr char prefix[] = "app.kestrowind.";

os_log_type_t levelOf(QtMsgType type) {
    switch (type) {
    case QtDebugMsg:
        return OS_LOG_TYPE_DEBUG;
    case QtInfoMsg:
        return OS_LOG_TYPE_INFO;
    case QtWarningMsg:
        return OS_LOG_TYPE_DEFAULT;
    case QtCriticalMsg:
        return OS_LOG_TYPE_ERROR;
    case QtFatalMsg:
        return OS_LOG_TYPE_FAULT;
    }
    return OS_LOG_TYPE_DEFAULT;
}

void log(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    QByteArray category(context.category);
    if (category.startsWith(prefix))
        category.remove(0, sizeof prefix - 1);
    // The system keeps one object for each pair and hands the same one out again.
    os_log_t destination = os_log_create(BundleInformation::identifier, category.constData());
    os_log_with_type(destination, levelOf(type), "%{public}s", message.toUtf8().constData());
}

} // namespace

void logToSystem() {
    qInstallMessageHandler(&log);
}

} // namespace kestrowind
