#include "UI/DesignSystem/DesktopCompositing.h"

#include "UI/DesignSystem/Linux/X11Connection.h"

#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace kestrowind {
namespace {

/// Whoever composes a screen owns this selection (freedesktop.org, Extended Window Manager Hints).
constexpr std::string_view compositor = "_NET_WM_CM_S0";

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

} // namespace

// Everything but X11 is composed.
bool isDesktopComposited() {
    xcb_connection_t* connection = x11Connection();
    if (!connection)
        return true;
    const Owned<xcb_intern_atom_reply_t> selection(
        xcb_intern_atom_reply(
            connection, xcb_intern_atom(connection, false, compositor.size(), compositor.data()),
            nullptr),
        &std::free);
    if (!selection)
        return false;
    const Owned<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(
            connection, xcb_get_selection_owner(connection, selection->atom), nullptr),
        &std::free);
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace kestrowind
