#pragma once

#include "Platform/HelperConnection.h"

namespace kestrowind {

/// The connection to the helper's Mach service in the system's domain. Handlers are called on the
/// connection's own queue. A helper that dies interrupts the connection: calls that wait get their
/// error handler, and the next call has launchd start a new one.
class XPCHelperConnection final : public HelperConnection {
public:
    explicit XPCHelperConnection(const QString& machServiceName);
    ~XPCHelperConnection() override;

    void setInvalidationHandler(std::function<void()> handler) override;
    void setTargets(const std::vector<double>& targets, Reply<std::vector<double>> reply,
                    ErrorHandler error) override;
    void releaseControl(Reply<> reply, ErrorHandler error) override;
    void status(Reply<std::optional<QByteArray>> reply, ErrorHandler error) override;
    void uninstall(Reply<bool> reply, ErrorHandler error) override;
    void shutDown(Reply<> reply, ErrorHandler error) override;

private:
    struct Link;

    /// The platform's connection. Handlers hold it weakly and do nothing once it is gone.
    std::shared_ptr<Link> m_link;
};

} // namespace kestrowind
