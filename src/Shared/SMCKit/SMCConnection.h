#pragma once

#include "Shared/SMCKit/FourCC.h"
#include "Shared/SMCKit/SMCError.h"
#include "Shared/SMCKit/SMCFanReading.h"
#include "Shared/SMCKit/SMCUserClient.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kestrowind {

/// A value as read: its type and at most the record's 32 bytes, without a heap allocation.
class SMCValue {
public:
    SMCValue(std::uint32_t typeCode, std::span<const std::uint8_t> bytes);

    [[nodiscard]] std::string type() const { return smcFourCCString(m_typeCode); }
    [[nodiscard]] bool isType(std::string_view name) const { return type() == name; }
    [[nodiscard]] std::span<const std::uint8_t> bytes() const { return {m_bytes.data(), m_size}; }

    /// The value of a "flt " of exactly 4 bytes; absent for everything else.
    [[nodiscard]] std::optional<float> asFloat() const;
    /// Exactly 4 bytes, most significant first, whatever the type.
    [[nodiscard]] std::optional<std::uint32_t> asBigEndian32() const;
    /// The first byte, whatever the type.
    [[nodiscard]] std::optional<std::uint8_t> asByte() const;

private:
    static constexpr std::size_t capacity = 32; ///< the record has no room for more

    std::uint32_t m_typeCode;
    std::uint8_t m_size;
    std::array<std::uint8_t, capacity> m_bytes{};
};

/// An open user client of the System Management Controller with typed access by key name.
///
/// There is no lock: an instance belongs to one thread at a time. A description of a key is asked
/// for once and then kept, so that a periodic read costs one kernel call; a key that is missing is
/// asked for again each time. The connection is never reopened: make a new one.
class SMCConnection {
public:
    /// Opens the SMC under its newer or its older service name.
    /// Errors: SMCServiceNotFound, SMCOpenFailed.
    [[nodiscard]] static SMCResult<std::unique_ptr<SMCConnection>>
    open(std::shared_ptr<SMCUserClient> userClient);

    SMCConnection(const SMCConnection&) = delete;
    SMCConnection& operator=(const SMCConnection&) = delete;
    ~SMCConnection();

    [[nodiscard]] SMCResult<SMCKeyInfoData> keyInfo(std::string_view key);
    [[nodiscard]] bool keyExists(std::string_view key);

    [[nodiscard]] SMCResult<SMCValue> readBytes(std::string_view key);
    [[nodiscard]] SMCResult<float> readFloat(std::string_view key);
    [[nodiscard]] SMCResult<std::uint8_t> readUInt8(std::string_view key);

    /// The value of "#KEY": how many keys the SMC has.
    [[nodiscard]] SMCResult<std::uint32_t> keyCount();
    [[nodiscard]] SMCResult<std::string> keyName(std::uint32_t index);

    /// Writes exactly as many bytes as the key holds; SMCLengthMismatch without a call otherwise.
    [[nodiscard]] SMCResult<void> writeBytes(std::string_view key,
                                             std::span<const std::uint8_t> data);
    [[nodiscard]] SMCResult<void> writeFloat(std::string_view key, float value);
    [[nodiscard]] SMCResult<void> writeUInt8(std::string_view key, std::uint8_t value);

    /// Number of fans, 0 when it cannot be read.
    [[nodiscard]] int fanCount();
    [[nodiscard]] std::optional<std::string> fanModeKey(int fanIndex);
    /// One fan; the first of its four speeds that cannot be read is the error.
    [[nodiscard]] SMCResult<SMCFanReading> readFan(int fanIndex);
    /// All fans in index order, or the error of the first that fails. Without a readable fan count
    /// the machine has no fans, which is not an error.
    [[nodiscard]] SMCResult<std::vector<SMCFanReading>> readAllFans();

private:
    SMCConnection(std::shared_ptr<SMCUserClient> userClient, std::uint32_t connection);

    /// An SMC that refuses is an SMCKeyError about `what`.
    [[nodiscard]] SMCResult<SMCParamStruct> call(std::string_view what,
                                                 const SMCParamStruct& input);

    std::shared_ptr<SMCUserClient> m_userClient;
    std::uint32_t m_connection;
    std::unordered_map<std::uint32_t, SMCKeyInfoData> m_keyInfoCache;
};

} // namespace kestrowind
