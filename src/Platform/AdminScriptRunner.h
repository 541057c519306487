#pragma once

#include <QFuture>
#include <QString>

namespace kestrowind {

/// How a run of the AppleScript runner ended.
struct ScriptOutcome {
    enum class Kind {
        succeeded,
        failed,     ///< it ran and ended with an error; message is its trimmed standard error
        notStarted, ///< it could not be started; message is the system's reason
    };
    Kind kind = Kind::succeeded;
    QString message = {};

    bool operator==(const ScriptOutcome&) const = default;
};

/// Runs one AppleScript with the machine's runner, which asks the user for an administrator's
/// password where the script wants it. The future always finishes.
class AdminScriptRunner {
public:
    AdminScriptRunner() = default;
    AdminScriptRunner(const AdminScriptRunner&) = delete;
    AdminScriptRunner& operator=(const AdminScriptRunner&) = delete;
    virtual ~AdminScriptRunner() = default;

    [[nodiscard]] virtual QFuture<ScriptOutcome> run(const QString& appleScript) = 0;
};

/// The runner that starts an executable (/usr/bin/osascript of the machine) with the arguments "-e"
/// and the script, on a worker that waits for its end. Runs overlap; one that waits for a password
/// outlives this object, and does not hold up the end of the application.
class ProcessScriptRunner final : public AdminScriptRunner {
public:
    explicit ProcessScriptRunner(QString executable);
    [[nodiscard]] QFuture<ScriptOutcome> run(const QString& appleScript) override;

private:
    QString m_executable;
};

} // namespace kestrowind
