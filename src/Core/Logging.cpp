#include "Core/Logging.h"

namespace kestrowind {

Q_LOGGING_CATEGORY(engineLog, "app.kestrowind.engine", QtInfoMsg)
Q_LOGGING_CATEGORY(helperClientLog, "app.kestrowind.helper-client", QtInfoMsg)
Q_LOGGING_CATEGORY(presetsLog, "app.kestrowind.presets", QtInfoMsg)
Q_LOGGING_CATEGORY(shellLog, "app.kestrowind.shell", QtInfoMsg)

} // namespace kestrowind
