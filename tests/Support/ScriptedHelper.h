#pragma once

#include "Shared/HelperShared/FanTargets.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/HelperShared/HelperStatus.h"
#include "Support/FakeHelperConnection.h"

#include <QHash>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <limits>

namespace kestrowind {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A helper in process that answers by itself: well, or for each method as badly as the test says.
/// Replies come later, through the event loop, as from another process.
class ScriptedHelper {
public:
    enum class Method { setTargets, status, releaseControl, shutDown };
    enum class Answer {
        good,
        silent,      ///< it acts, and never says so
        late,        ///< it acts, and says so when nobody waits any more
        broken,      ///< the connection fails instead
        invalidated, ///< so does every later call on this connection
        empty,       ///< no numbers, no status
        tooShort,    ///< a number less, half a status
        tooLong,     ///< ten thousand numbers, a status of 30 kilobytes
        nonsense,    ///< not a number; no JSON
        otherVersion,
    };

    explicit ScriptedHelper(std::chrono::milliseconds patience)
        : m_patience(patience) {
        m_end.take = [this](const FakeHelper::Call& call) { take(call); };
    }

    QHash<Method, Answer> answers; ///< those that are missing are good
    bool isHolding = false;
    bool wasAskedNonsense = false; ///< targets that no helper takes
    std::vector<double> targets;

    /// The process is killed and started again: it hands the fans back first, and calls that wait
    /// fail.
    void restart() {
        isHolding = false;
        ++m_generation;
    }

    HelperConnectionFactory factory() { return m_end.factory(); }

private:
    void take(const FakeHelper::Call& call) {
        static const QHash<QString, Method> methods{{u"setTargets"_s, Method::setTargets},
                                                    {u"status"_s, Method::status},
                                                    {u"releaseControl"_s, Method::releaseControl},
                                                    {u"shutDown"_s, Method::shutDown}};
        if (!methods.contains(call.method))
            return call.replyBool(false);
        const Method method = methods[call.method];
        const Answer how = answers.value(method, Answer::good);
        const bool setsTargets = method == Method::setTargets;
        if (setsTargets && (call.targets.empty() || !checkFanSpeeds(call.targets)))
            wasAskedNonsense = true;

        // Not after this connection: destroying it calls no handler any more.
        const auto later = [&call](auto action, std::chrono::milliseconds delay = {}) {
            QTimer::singleShot(delay, Qt::PreciseTimer, call.connection, std::move(action));
        };
        const auto fail = [error = call.error] { error(u"the test cut the connection"_s); };
        if (how == Answer::invalidated)
            m_invalid = call.connection;
        if (m_invalid == call.connection || how == Answer::broken) {
            later(fail);
            if (m_invalid == call.connection)
                later(m_end.invalidationHandler);
            return;
        }
        if (setsTargets)
            targets = call.targets;
        if (method != Method::status)
            isHolding = setsTargets;
        if (how != Answer::silent) {
            later([this, reply = reply(call, how), fail,
                   generation = m_generation] { generation == m_generation ? reply() : fail(); },
                  how == Answer::late ? 2 * m_patience : 0ms);
        }
    }

    [[nodiscard]] std::function<void()> reply(const FakeHelper::Call& call, Answer how) const {
        if (call.replyTargets)
            return [reply = call.replyTargets, applied = spoiled(how)] { reply(applied); };
        if (call.replyStatus)
            return [reply = call.replyStatus, status = document(how)] { reply(status); };
        return call.reply;
    }
    [[nodiscard]] std::vector<double> spoiled(Answer how) const {
        std::vector<double> applied = targets;
        if (how == Answer::empty)
            applied.clear();
        else if (how == Answer::tooShort)
            applied.pop_back();
        else if (how == Answer::tooLong)
            applied.resize(10'000, 1000);
        else if (how == Answer::nonsense)
            applied.back() = std::numeric_limits<double>::quiet_NaN();
        return applied;
    }
    [[nodiscard]] std::optional<QByteArray> document(Answer how) const {
        HelperStatus status{.version = HelperConstants::helperVersion,
                            .phase = isHolding ? HelperControlPhase::controlling
                                               : HelperControlPhase::idle,
                            .effectiveTargets = targets};
        if (how == Answer::otherVersion)
            status.version = "9.9";
        if (how == Answer::tooLong)
            status.lastError = std::string(30'000, 'x');
        const auto bytes = QByteArray::fromStdString(encodeHelperStatus(status));
        if (how == Answer::empty)
            return std::nullopt;
        if (how == Answer::nonsense)
            return QByteArray("\x00\xff{\"version\":", 14);
        return how == Answer::tooShort ? bytes.left(bytes.size() / 2) : bytes;
    }

    std::chrono::milliseconds m_patience; ///< how long a caller waits for a reply
    FakeHelper m_end;
    QPointer<QObject> m_invalid; ///< the connection that no call goes through any more
    int m_generation = 0;
};

} // namespace kestrowind
