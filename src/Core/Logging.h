#pragma once

#include <QLoggingCategory>

namespace kestrowind {

// The system log's categories, one a unit, below the application's bundle identifier. Debug lines
// are off unless QT_LOGGING_RULES asks for them ("app.kestrowind.*.debug=true").
Q_DECLARE_LOGGING_CATEGORY(engineLog)
Q_DECLARE_LOGGING_CATEGORY(helperClientLog)
Q_DECLARE_LOGGING_CATEGORY(presetsLog)
Q_DECLARE_LOGGING_CATEGORY(shellLog)

} // namespace kestrowind
