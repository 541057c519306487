#pragma once

#include "Platform/HelperConnection.h"

#include <QObject>
#include <QStringList>

namespace kestrowind {

using namespace Qt::StringLiterals;

/// A helper's end of the connection that does what the test says: it keeps each call's handlers,
/// and the test answers, fails, or leaves them, or takes the calls itself.
class FakeHelper {
public:
    struct Call {
        QString method;
        std::vector<double> targets = {};
        std::function<void(std::vector<double>)> replyTargets = {};
        std::function<void(std::optional<QByteArray>)> replyStatus = {};
        std::function<void(bool)> replyBool = {};
        std::function<void()> reply = {};
        HelperConnection::ErrorHandler error = {};
        QObject* connection = nullptr; ///< lives as long as that does
    };

    std::vector<Call> calls;
    std::function<void(Call)> take = [this](Call call) { calls.push_back(std::move(call)); };
    int connectionsMade = 0;
    int connectionsOpen = 0;
    std::function<void()> invalidationHandler;

    [[nodiscard]] QStringList methods() const {
        QStringList names;
        for (const Call& call : calls)
            names.append(call.method);
        return names;
    }

    HelperConnectionFactory factory() {
        return [this](const QString&) { return std::make_unique<Connection>(*this); };
    }

private:
    class Connection final : public HelperConnection {
    public:
        explicit Connection(FakeHelper& helper)
            : m_helper(helper) {
            ++m_helper.connectionsMade;
            ++m_helper.connectionsOpen;
        }
        ~Connection() override { --m_helper.connectionsOpen; }

        void setInvalidationHandler(std::function<void()> handler) override {
            m_helper.invalidationHandler = std::move(handler);
        }
        void setTargets(const std::vector<double>& targets, Reply<std::vector<double>> reply,
                        ErrorHandler error) override {
            take({.method = u"setTargets"_s, .targets = targets, .replyTargets = std::move(reply)},
                 std::move(error));
        }
        void releaseControl(Reply<> reply, ErrorHandler error) override {
            take({.method = u"releaseControl"_s, .reply = std::move(reply)}, std::move(error));
        }
        void status(Reply<std::optional<QByteArray>> reply, ErrorHandler error) override {
            take({.method = u"status"_s, .replyStatus = std::move(reply)}, std::move(error));
        }
        void uninstall(Reply<bool> reply, ErrorHandler error) override {
            take({.method = u"uninstall"_s, .replyBool = std::move(reply)}, std::move(error));
        }
        void shutDown(Reply<> reply, ErrorHandler error) override {
            take({.method = u"shutDown"_s, .reply = std::move(reply)}, std::move(error));
        }

    private:
        void take(Call call, ErrorHandler error) {
            call.error = std::move(error);
            call.connection = &m_lifetime;
            m_helper.take(std::move(call));
        }

        QObject m_lifetime;
        FakeHelper& m_helper;
    };
};

} // namespace kestrowind
