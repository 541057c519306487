#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace kestrowind {

/// Firmware version record; always sent as zero and never read.
struct SMCVersion {
    std::uint8_t major = 0;
    std::uint8_t minor = 0;
    std::uint8_t build = 0;
    std::uint8_t reserved = 0;
    std::uint16_t release = 0;
};

/// Power-limit record; always sent as zero and never read.
struct SMCPLimitData {
    std::uint16_t version = 0;
    std::uint16_t length = 0;
    std::uint32_t cpuPLimit = 0;
    std::uint32_t gpuPLimit = 0;
    std::uint32_t memPLimit = 0;
};

#pragma pack(push, 1)
/// Description of one key. Nine bytes with no tail padding, because the kernel's record places the
/// field after it inside what would otherwise be that padding.
struct SMCKeyInfoData {
    std::uint32_t dataSize = 0;      ///< number of value bytes that the key holds
    std::uint32_t dataType = 0;      ///< packed four-character type code, "flt " for example
    std::uint8_t dataAttributes = 0; ///< attribute bits, kept but never interpreted
};
#pragma pack(pop)

/// The call record of the SMC's kernel user client, the same for input and output. It is copied to
/// the kernel as raw memory in host byte order, so every offset below is a contract.
struct SMCParamStruct {
    std::uint32_t key = 0;
    SMCVersion vers;
    std::uint16_t alignmentAfterVers = 0;
    SMCPLimitData pLimitData;
    SMCKeyInfoData keyInfo;
    std::uint8_t alignmentAfterKeyInfo = 0;
    std::uint16_t padding = 0;
    std::uint8_t result = 0; ///< the SMC's result code; 0 means success
    std::uint8_t status = 0;
    std::uint8_t data8 = 0; ///< command code, see SMCCommand
    std::uint8_t alignmentAfterData8 = 0;
    std::uint32_t data32 = 0;             ///< command argument: a key index
    std::array<std::uint8_t, 32> bytes{}; ///< value bytes
};

static_assert(sizeof(SMCVersion) == 6);
static_assert(sizeof(SMCPLimitData) == 16);
static_assert(sizeof(SMCKeyInfoData) == 9);
static_assert(sizeof(SMCParamStruct) == 80);
static_assert(std::is_trivially_copyable_v<SMCParamStruct>);
static_assert(std::is_standard_layout_v<SMCParamStruct>);
static_assert(offsetof(SMCParamStruct, key) == 0);
static_assert(offsetof(SMCParamStruct, vers) == 4);
static_assert(offsetof(SMCParamStruct, pLimitData) == 12);
static_assert(offsetof(SMCParamStruct, keyInfo) == 28);
static_assert(offsetof(SMCKeyInfoData, dataSize) == 0);
static_assert(offsetof(SMCKeyInfoData, dataType) == 4);
static_assert(offsetof(SMCKeyInfoData, dataAttributes) == 8);
static_assert(offsetof(SMCParamStruct, padding) == 38);
static_assert(offsetof(SMCParamStruct, result) == 40);
static_assert(offsetof(SMCParamStruct, status) == 41);
static_assert(offsetof(SMCParamStruct, data8) == 42);
static_assert(offsetof(SMCParamStruct, data32) == 44);
static_assert(offsetof(SMCParamStruct, bytes) == 48);

/// Command codes, placed in SMCParamStruct::data8.
namespace SMCCommand {
inline constexpr std::uint8_t readKey = 5;
inline constexpr std::uint8_t writeKey = 6;
inline constexpr std::uint8_t getKeyFromIndex = 8;
inline constexpr std::uint8_t getKeyInfo = 9;
} // namespace SMCCommand

/// Number of the user client's struct method that carries all four commands.
inline constexpr std::uint32_t smcStructMethod = 2;

} // namespace kestrowind
