#pragma once

#include "Platform/HelperConnection.h"
#include "Shared/HelperShared/FanTargets.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Shared/HelperShared/HelperStatus.h"

#include <QHash>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <limits>

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
        : m_patience(patience) {}
    ScriptedHelper(const ScriptedHelper&) = delete;
    ScriptedHelper& operator=(const ScriptedHelper&) = delete;

    QHash<Method, Answer> answers; ///< those that are missing are good
    bool isHolding = false;
    bool wasAskedNonsense = false; ///< targets that no helper takes
    std::vector<double> targets;
    int connectionsMade = 0;

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
            answer(Method::setTargets, std::move(error), [this, targets, reply](Answer how) {
                m_helper.isHolding = true;
                m_helper.targets = targets;
                return [reply, applied = spoiled(targets, how)] { reply(applied); };
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

    std::chrono::milliseconds m_patience; ///< how long a caller waits for a reply
    int m_generation = 0;
};

} // namespace kestrowind
