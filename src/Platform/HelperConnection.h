#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kestrowind {

/// The connection to the privileged helper's Mach service, made lazily: nothing happens before the
/// first call. Each call ends in at most one of its reply and its error handler; a helper that is
/// silent calls neither. Handlers may be called on any thread. Destroying the connection ends it
/// and calls no handler any more.
class HelperConnection {
public:
    template <class... Values>
    using Reply = std::function<void(Values...)>;
    /// The connection broke, the service is unknown, or the reply was not of the declared types.
    using ErrorHandler = std::function<void(const QString& description)>;

    HelperConnection() = default;
    HelperConnection(const HelperConnection&) = delete;
    HelperConnection& operator=(const HelperConnection&) = delete;
    virtual ~HelperConnection() = default;

    /// Called once when the connection can never be used again (the service does not exist).
    virtual void setInvalidationHandler(std::function<void()> handler) = 0;

    /// Per-fan speeds in revolutions per minute, there and back.
    virtual void setTargets(const std::vector<double>& targets, Reply<std::vector<double>> reply,
                            ErrorHandler error) = 0;
    virtual void releaseControl(Reply<> reply, ErrorHandler error) = 0;
    /// The status record as a JSON document; absent when the helper has none.
    virtual void status(Reply<std::optional<QByteArray>> reply, ErrorHandler error) = 0;
    virtual void uninstall(Reply<bool> reply, ErrorHandler error) = 0;
    virtual void shutDown(Reply<> reply, ErrorHandler error) = 0;
};

using HelperConnectionFactory =
    std::function<std::unique_ptr<HelperConnection>(const QString& machServiceName)>;

} // namespace kestrowind
