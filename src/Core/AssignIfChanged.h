#pragma once

#include <utility>

namespace kestrowind {

/// Stores a value and says whether it really changed: observers hear only of real changes.
template <class T, class U>
[[nodiscard]] bool assignIfChanged(T& member, U&& value) {
    if (member == value)
        return false;
    member = std::forward<U>(value);
    return true;
}

} // namespace kestrowind
