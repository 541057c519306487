#include "Platform/AdminScriptRunner.h"

#include <QProcess>
#include <QPromise>
#include <QStringDecoder>
#include <QThreadPool>

#include <memory>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

/// Nobody waits for these workers, so they are never destroyed: a password dialog may stay open
/// while the application ends.
QThreadPool& workers() {
    static auto* const pool = new QThreadPool;
    return *pool;
}

QString decodedError(const QByteArray& standardError) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(standardError);
    return decoder.hasError() ? u"unknown error"_s : text.trimmed();
}

/// Blocks until the runner has ended.
ScriptOutcome runAndWait(const QString& executable, const QString& appleScript) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(executable, {u"-e"_s, appleScript}, QIODevice::ReadOnly);
    process.waitForFinished(-1);
    if (process.error() == QProcess::FailedToStart)
        return {ScriptOutcome::Kind::notStarted, process.errorString()};
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {ScriptOutcome::Kind::succeeded};
    return {ScriptOutcome::Kind::failed, decodedError(process.readAllStandardError())};
}

} // namespace

ProcessScriptRunner::ProcessScriptRunner(QString executable)
    : m_executable(std::move(executable)) {}

QFuture<ScriptOutcome> ProcessScriptRunner::run(const QString& appleScript) {
    auto promise = std::make_shared<QPromise<ScriptOutcome>>();
    promise->start();
    workers().start([promise, executable = m_executable, appleScript] {
        promise->addResult(runAndWait(executable, appleScript));
        promise->finish();
    });
    return promise->future();
}

} // namespace kestrowind
