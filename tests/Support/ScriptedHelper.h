#pragma once

#include "Platform/HelperConnection.h"
#include "Shared/HelperShared/FanTargets.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/HelperShared/HelperStatus.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <limits>
#include <set>

namespace kestrowind {

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
        m_clock.start();
    }
    ScriptedHelper(const ScriptedHelper&) = delete;
    ScriptedHelper& operator=(const ScriptedHelper&) = delete;

    QHash<Method, Answer> answers; ///< those that are missing are good
    bool isHolding = false;
    bool wasAskedNonsense = false; ///< targets that no helper takes
    std::vector<double> targets;
    int connectionsMade = 0;
    qsizetype mostWaiting = 0; ///< sets of targets that somebody waited for at the same time

    /// The process is killed and started again: it hands the fans back first, and calls that wait
    /// fail.
    void restart() {
        isHolding = false;
        ++m_generation;
    }

    HelperConnectionFactory factory() {
        return [this](const QString&) { return std::make_unique<Connection>(*this); };
    }

private:
    class Connection final : public HelperConnection {
    public:
        explicit Connection(ScriptedHelper& helper)
            : m_helper(helper) {
            ++helper.connectionsMade;
        }

        void setInvalidationHandler(std::function<void()> handler) override {
            m_invalidated = std::move(handler);
        }
        void setTargets(const std::vector<double>& targets, Reply<std::vector<double>> reply,
                        ErrorHandler error) override {
            m_helper.wasAskedNonsense =
                m_helper.wasAskedNonsense || targets.empty() || !checkFanSpeeds(targets);
            const qint64 number = m_helper.beginWait();
            answer(Method::setTargets, std::move(error),
                   [this, targets, reply, number](Answer how) {
                       m_helper.isHolding = true;
                       m_helper.targets = targets;
                       return [this, number, reply, applied = spoiled(targets, how)] {
                           m_helper.m_waiting.erase(number);
                           reply(applied);
                       };
                   });
        }
        void releaseControl(Reply<> reply, ErrorHandler error) override {
            answer(Method::releaseControl, std::move(error), [this, reply](Answer) {
                m_helper.isHolding = false;
                return reply;
            });
        }
        void status(Reply<std::optional<QByteArray>> reply, ErrorHandler error) override {
            answer(Method::status, std::move(error), [this, reply](Answer how) {
                return [reply, document = document(how)] { reply(document); };
            });
        }
        void uninstall(Reply<bool> reply, ErrorHandler /*error*/) override { reply(false); }
        void shutDown(Reply<> reply, ErrorHandler error) override {
            answer(Method::shutDown, std::move(error), [this, reply](Answer) {
                m_helper.isHolding = false;
                return reply;
            });
        }

    private:
        /// `act` does what is asked for and returns the reply.
        template <class Act>
        void answer(Method method, ErrorHandler error, Act act) {
            const Answer how = m_helper.answers.value(method, Answer::good);
            const auto fail = [error] { error(QStringLiteral("the test cut the connection")); };
            m_isInvalid = m_isInvalid || how == Answer::invalidated;
            if (m_isInvalid || how == Answer::broken) {
                later({}, fail);
                if (m_isInvalid)
                    later({}, m_invalidated);
                return;
            }
            std::function<void()> reply = [this, reply = std::function<void()>(act(how)), fail,
                                           generation = m_helper.m_generation] {
                generation == m_helper.m_generation ? reply() : fail();
            };
            if (how == Answer::late)
                later(2 * m_helper.m_patience, std::move(reply));
            else if (how != Answer::silent)
                later({}, std::move(reply));
        }
        void later(std::chrono::milliseconds delay, std::function<void()> action) {
            // Not after this connection: destroying it calls no handler any more.
            QTimer::singleShot(delay, Qt::PreciseTimer, &m_context, std::move(action));
        }
        static std::vector<double> spoiled(std::vector<double> targets, Answer how) {
            if (how == Answer::empty)
                targets.clear();
            else if (how == Answer::tooShort)
                targets.pop_back();
            else if (how == Answer::tooLong)
                targets.resize(10'000, 1000);
            else if (how == Answer::nonsense)
                targets.back() = std::numeric_limits<double>::quiet_NaN();
            return targets;
        }
        [[nodiscard]] std::optional<QByteArray> document(Answer how) const {
            HelperStatus status{.version = HelperConstants::helperVersion,
                                .phase = m_helper.isHolding ? HelperControlPhase::controlling
                                                            : HelperControlPhase::idle,
                                .effectiveTargets = m_helper.targets};
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

        ScriptedHelper& m_helper;
        bool m_isInvalid = false;
        std::function<void()> m_invalidated;
        QObject m_context;
    };

    qint64 beginWait() {
        const qint64 now = m_clock.nsecsElapsed();
        const qint64 oldest = now - std::chrono::nanoseconds(m_patience).count();
        m_waiting.erase(m_waiting.begin(), m_waiting.upper_bound(oldest));
        m_waiting.insert(now);
        mostWaiting = std::max(mostWaiting, static_cast<qsizetype>(m_waiting.size()));
        return now;
    }

    std::chrono::milliseconds m_patience; ///< how long a caller waits for a reply
    QElapsedTimer m_clock;
    std::set<qint64> m_waiting; ///< when they were sent, in nanoseconds
    int m_generation = 0;
};

} // namespace kestrowind
