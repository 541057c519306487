#pragma once

#include <QFuture>
#include <QPromise>

#include <mutex>
#include <optional>

namespace kestrowind {

class PendingReplyBase {
public:
    PendingReplyBase() = default;
    PendingReplyBase(const PendingReplyBase&) = delete;
    PendingReplyBase& operator=(const PendingReplyBase&) = delete;
    virtual ~PendingReplyBase() = default;

    /// Settles with nothing, if nothing settled it before.
    virtual void giveUp() = 0;
};

/// The one-shot completion of a call. Its reply, on any thread, and its time-out may race: the
/// first to arrive settles the future, everything later is dropped.
template <class Value>
class PendingReply final : public PendingReplyBase {
public:
    PendingReply() { m_promise.start(); }
    /// A future that is never settled would leave whoever awaits it hanging.
    ~PendingReply() override { settle(std::nullopt); }

    [[nodiscard]] QFuture<std::optional<Value>> future() const { return m_promise.future(); }
    void complete(Value value) { settle(std::optional<Value>(std::move(value))); }
    void giveUp() override { settle(std::nullopt); }

private:
    void settle(std::optional<Value> value) {
        {
            const std::lock_guard lock(m_mutex);
            if (m_isSettled)
                return;
            m_isSettled = true;
        }
        m_promise.addResult(std::move(value));
        m_promise.finish();
    }

    std::mutex m_mutex;
    bool m_isSettled = false;
    QPromise<std::optional<Value>> m_promise;
};

} // namespace kestrowind
