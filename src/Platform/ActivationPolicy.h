#pragma once

namespace kestrowind {

/// How the application shows in the system: with a Dock icon and a menu of its own, or living in
/// the menu bar alone. Belongs to the main thread.
class ActivationPolicy {
public:
    enum class Policy { regular, accessory };

    virtual ~ActivationPolicy() = default;

    [[nodiscard]] virtual Policy policy() const = 0;
    virtual void setPolicy(Policy policy) = 0;
    /// Brings the application in front of all others.
    virtual void activate() = 0;
};

} // namespace kestrowind
