#include "Platform/AdminScriptRunner.h"

#include <QProcess>
#include <QPromise>
#include <QStringDecoder>

#include <memory>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

QString decodedError(const QByteArray& standardError) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(standardError);
    return decoder.hasError() ? u"unknown error"_s : text.trimmed();
}

} // namespace

ProcessScriptRunner::ProcessScriptRunner(QString executable)
    : m_executable(std::move(executable)) {}

QFuture<ScriptOutcome> ProcessScriptRunner::run(const QString& appleScript) {
    auto promise = std::make_shared<QPromise<ScriptOutcome>>();
    promise->start();
    // The process outlives this object: a password dialog may stay open while the caller goes.
    auto* process = new QProcess;
    process->setStandardOutputFile(QProcess::nullDevice());
    const auto settle = [promise, process](ScriptOutcome outcome) {
        promise->addResult(std::move(outcome));
        promise->finish();
        process->deleteLater();
    };
    QObject::connect(process, &QProcess::errorOccurred, process,
                     [process, settle](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart)
                             settle({ScriptOutcome::Kind::notStarted, process->errorString()});
                     });
    QObject::connect(process, &QProcess::finished, process,
                     [process, settle](int exitCode, QProcess::ExitStatus status) {
                         if (status == QProcess::NormalExit && exitCode == 0)
                             settle({ScriptOutcome::Kind::succeeded});
                         else
                             settle({ScriptOutcome::Kind::failed,
                                     decodedError(process->readAllStandardError())});
                     });
    process->start(m_executable, {u"-e"_s, appleScript}, QIODevice::ReadOnly);
    return promise->future();
}

} // namespace kestrowind
