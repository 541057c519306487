#pragma once

#include "Shared/SMCKit/SMCParamStruct.h"

#include <cstdint>
#include <type_traits>

/// How the simulated kernel's SMC service speaks over its socket (SOCK_SEQPACKET): one request and
/// one reply a message, each of exactly the size below.
namespace kestrowind::SMCWire {

enum class Operation : std::uint32_t { matchingService = 1, open = 2, call = 3, close = 4 };

struct Request {
    std::uint32_t sequence = 0; ///< comes back with the reply, so that a late one is told apart
    std::uint32_t operation = 0;
    std::uint32_t handle = 0;   ///< service to open, connection to call or close
    std::uint32_t argument = 0; ///< connection type of open, selector of call
    char className[32] = {};    ///< NUL-terminated name of matchingService
    SMCParamStruct record;      ///< input of call
};

struct Reply {
    std::uint32_t sequence = 0;
    std::int32_t code = 0;    ///< kernel return code
    std::uint32_t handle = 0; ///< service found or connection opened
    SMCParamStruct record;    ///< output of call
};

static_assert(std::is_trivially_copyable_v<Request> && sizeof(Request) == 128);
static_assert(std::is_trivially_copyable_v<Reply> && sizeof(Reply) == 92);

} // namespace kestrowind::SMCWire

/// The kernel's return codes that the simulated machine uses.
namespace kestrowind::IOReturn {
inline constexpr std::int32_t success = 0;
inline constexpr auto noDevice = static_cast<std::int32_t>(0xe00002c0);
inline constexpr auto badArgument = static_cast<std::int32_t>(0xe00002c2);
inline constexpr auto notOpen = static_cast<std::int32_t>(0xe00002cd);
inline constexpr auto timeout = static_cast<std::int32_t>(0xe00002d6);
} // namespace kestrowind::IOReturn
