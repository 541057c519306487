#pragma once

#include "Platform/HelperConnection.h"

#include <QStringList>

namespace kestrowind {

/// A helper's end of the connection that does what the test says: it keeps each call's handlers,
/// and the test answers, fails, or leaves them.
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
    };

    std::vector<Call> calls;
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
            Call& call = note("setTargets", std::move(error));
            call.targets = targets;
            call.replyTargets = std::move(reply);
        }
        void releaseControl(Reply<> reply, ErrorHandler error) override {
            note("releaseControl", std::move(error)).reply = std::move(reply);
        }
        void status(Reply<std::optional<QByteArray>> reply, ErrorHandler error) override {
            note("status", std::move(error)).replyStatus = std::move(reply);
        }
        void uninstall(Reply<bool> reply, ErrorHandler error) override {
            note("uninstall", std::move(error)).replyBool = std::move(reply);
        }
        void shutDown(Reply<> reply, ErrorHandler error) override {
            note("shutDown", std::move(error)).reply = std::move(reply);
        }

    private:
        Call& note(const char* method, ErrorHandler error) {
            m_helper.calls.push_back(
                {.method = QString::fromLatin1(method), .error = std::move(error)});
            return m_helper.calls.back();
        }

        FakeHelper& m_helper;
    };
};

} // namespace kestrowind
