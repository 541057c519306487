#pragma once

#include "Helper/Linux/BusListener.h"

#include <filesystem>

namespace kestrowind {

class FanController;

/// The helper's listener with the faults wrapped around it that the machine's HelperBehaviour asks
/// for: silence, lateness, rubbish, a failure, another version. What it wraps knows nothing of it.
class MisbehavingListener final : public BusListener {
public:
    /// root is the folder of the simulated Mac. The references must outlive the listener.
    MisbehavingListener(QDBusServer& server, FanController& controller, std::filesystem::path root);

protected:
    void answer(const QDBusMessage& call, const QDBusConnection& connection) override;

private:
    FanController& m_controller;
    std::filesystem::path m_root;
};

} // namespace kestrowind
