#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <variant>

namespace kestrowind {

/// The open was refused by the kernel.
struct SMCOpenFailed {
    std::int32_t code = 0; ///< kernel return code
    bool operator==(const SMCOpenFailed&) const = default;
};

/// A call was refused by the kernel, for example because the connection became invalid.
struct SMCCallFailed {
    std::int32_t code = 0; ///< kernel return code
    bool operator==(const SMCCallFailed&) const = default;
};

/// The SMC refused a key or a command.
struct SMCKeyError {
    std::string key;         ///< key name, or "#" and an index
    std::uint8_t result = 0; ///< the SMC's own result, or smcResultTooShort
    bool operator==(const SMCKeyError&) const = default;
};

/// A value is not of the type or size that its reader needs.
struct SMCTypeMismatch {
    std::string key;
    std::string expected;
    std::string actual;
    bool operator==(const SMCTypeMismatch&) const = default;
};

/// A write whose length is not the key's: refused before it reaches the SMC.
struct SMCLengthMismatch {
    std::string key;
    std::uint32_t expected = 0; ///< bytes the key holds
    std::size_t actual = 0;     ///< bytes given
    bool operator==(const SMCLengthMismatch&) const = default;
};

/// Neither name of the SMC's service is registered with the kernel.
struct SMCServiceNotFound {
    bool operator==(const SMCServiceNotFound&) const = default;
};

using SMCError = std::variant<SMCOpenFailed, SMCCallFailed, SMCKeyError, SMCTypeMismatch,
                              SMCLengthMismatch, SMCServiceNotFound>;

/// Stands for an SMC result where a read returned fewer bytes than its reader needs.
inline constexpr std::uint8_t smcResultTooShort = 255;

/// The error in the words of the diagnostic dump (English, not localised).
[[nodiscard]] std::string description(const SMCError& error);

template <class T>
using SMCResult = std::expected<T, SMCError>;

} // namespace kestrowind
