#include "Shared/SMCKit/SMCError.h"

#include <charconv>

namespace kestrowind {
namespace {

/// The 32-bit pattern in lower-case hexadecimal without leading zeros.
std::string hexadecimal(std::int32_t code) {
    char digits[8];
    const auto end = std::to_chars(digits, digits + 8, static_cast<std::uint32_t>(code), 16).ptr;
    return "0x" + std::string(digits, end);
}

struct Describe {
    std::string operator()(const SMCOpenFailed& error) const {
        return "IOServiceOpen failed (" + hexadecimal(error.code) + ")";
    }
    std::string operator()(const SMCCallFailed& error) const {
        return "SMC call failed (" + hexadecimal(error.code) + ")";
    }
    std::string operator()(const SMCKeyError& error) const {
        return "SMC key " + error.key + " error (result " + std::to_string(error.result) + ")";
    }
    std::string operator()(const SMCTypeMismatch& error) const {
        return "SMC key " + error.key + " is type " + error.actual + ", expected " + error.expected;
    }
    std::string operator()(const SMCLengthMismatch& error) const {
        return "SMC key " + error.key + " holds " + std::to_string(error.expected) + " bytes, " +
               std::to_string(error.actual) + " given";
    }
    std::string operator()(const SMCServiceNotFound&) const { return "AppleSMC service not found"; }
};

} // namespace

std::string description(const SMCError& error) {
    return std::visit(Describe{}, error);
}

} // namespace kestrowind
