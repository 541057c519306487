#include "Shared/SMCKit/SMCConnection.h"

#include "Shared/SMCKit/SMCCodec.h"

#include <algorithm>
#include <utility>

namespace kestrowind {

SMCValue::SMCValue(std::uint32_t typeCode, std::span<const std::uint8_t> bytes)
    : m_typeCode(typeCode)
    , m_size(static_cast<std::uint8_t>(std::min(bytes.size(), capacity))) {
    std::copy_n(bytes.begin(), m_size, m_bytes.begin());
}

std::optional<float> SMCValue::asFloat() const {
    if (m_typeCode != smcFourCC("flt ") || m_size != 4)
        return std::nullopt;
    return decodeFloat(std::span(m_bytes).first<4>());
}

std::optional<std::uint32_t> SMCValue::asBigEndian32() const {
    if (m_size != 4)
        return std::nullopt;
    return decodeBigEndian32(std::span(m_bytes).first<4>());
}

std::optional<std::uint8_t> SMCValue::asByte() const {
    if (m_size == 0)
        return std::nullopt;
    return m_bytes[0];
}

SMCResult<std::unique_ptr<SMCConnection>>
SMCConnection::open(std::shared_ptr<SMCUserClient> userClient) {
    std::uint32_t service = userClient->matchingService("AppleSMCKeysEndpoint");
    if (service == 0)
        service = userClient->matchingService("AppleSMC");
    if (service == 0)
        return std::unexpected(SMCServiceNotFound{});
    const SMCUserClient::Opened opened = userClient->open(service, 0);
    userClient->releaseService(service);
    if (opened.code != 0)
        return std::unexpected(SMCOpenFailed{opened.code});
    return std::unique_ptr<SMCConnection>(
        new SMCConnection(std::move(userClient), opened.connection));
}

SMCConnection::SMCConnection(std::shared_ptr<SMCUserClient> userClient, std::uint32_t connection)
    : m_userClient(std::move(userClient))
    , m_connection(connection) {}

SMCConnection::~SMCConnection() {
    if (m_connection != 0)
        m_userClient->close(m_connection);
}

SMCResult<SMCParamStruct> SMCConnection::call(std::string_view what, const SMCParamStruct& input) {
    SMCParamStruct output;
    const std::int32_t code =
        m_userClient->callStructMethod(m_connection, smcStructMethod, input, output);
    if (code != 0)
        return std::unexpected(SMCCallFailed{code});
    if (output.result != 0)
        return std::unexpected(SMCKeyError{std::string(what), output.result});
    return output;
}

SMCResult<SMCKeyInfoData> SMCConnection::keyInfo(std::string_view key) {
    SMCParamStruct input;
    input.key = smcFourCC(key);
    if (const auto cached = m_keyInfoCache.find(input.key); cached != m_keyInfoCache.end())
        return cached->second;
    input.data8 = SMCCommand::getKeyInfo;
    const auto output = call(key, input);
    if (!output)
        return std::unexpected(output.error());
    m_keyInfoCache.emplace(input.key, output->keyInfo);
    return output->keyInfo;
}

bool SMCConnection::keyExists(std::string_view key) {
    return keyInfo(key).has_value();
}

SMCResult<SMCValue> SMCConnection::readBytes(std::string_view key) {
    const auto info = keyInfo(key);
    if (!info)
        return std::unexpected(info.error());
    SMCParamStruct input;
    input.key = smcFourCC(key);
    input.keyInfo.dataSize = info->dataSize;
    input.data8 = SMCCommand::readKey;
    const auto output = call(key, input);
    if (!output)
        return std::unexpected(output.error());
    const std::size_t size = std::min<std::size_t>(info->dataSize, output->bytes.size());
    return SMCValue(info->dataType, std::span(output->bytes).first(size));
}

SMCResult<float> SMCConnection::readFloat(std::string_view key) {
    const auto value = readBytes(key);
    if (!value)
        return std::unexpected(value.error());
    if (const auto number = value->asFloat())
        return *number;
    return std::unexpected(SMCTypeMismatch{std::string(key), "flt ", value->type()});
}

SMCResult<std::uint8_t> SMCConnection::readUInt8(std::string_view key) {
    const auto value = readBytes(key);
    if (!value)
        return std::unexpected(value.error());
    if (const auto byte = value->asByte())
        return *byte;
    return std::unexpected(SMCKeyError{std::string(key), smcResultTooShort});
}

SMCResult<std::uint32_t> SMCConnection::keyCount() {
    const auto value = readBytes("#KEY");
    if (!value)
        return std::unexpected(value.error());
    if (const auto count = value->asBigEndian32())
        return *count;
    return std::unexpected(SMCKeyError{"#KEY", smcResultTooShort});
}

SMCResult<std::string> SMCConnection::keyName(std::uint32_t index) {
    SMCParamStruct input;
    input.data8 = SMCCommand::getKeyFromIndex;
    input.data32 = index;
    const auto output = call("#" + std::to_string(index), input);
    if (!output)
        return std::unexpected(output.error());
    return smcFourCCString(output->key);
}

SMCResult<void> SMCConnection::writeBytes(std::string_view key,
                                          std::span<const std::uint8_t> data) {
    const auto info = keyInfo(key);
    if (!info)
        return std::unexpected(info.error());
    SMCParamStruct input;
    if (data.size() != info->dataSize || data.size() > input.bytes.size())
        return std::unexpected(SMCLengthMismatch{std::string(key), info->dataSize, data.size()});
    input.key = smcFourCC(key);
    input.keyInfo.dataSize = info->dataSize;
    input.data8 = SMCCommand::writeKey;
    std::ranges::copy(data, input.bytes.begin());
    if (const auto written = call(key, input); !written)
        return std::unexpected(written.error());
    return {};
}

SMCResult<void> SMCConnection::writeFloat(std::string_view key, float value) {
    return writeBytes(key, encodeFloat(value));
}

SMCResult<void> SMCConnection::writeUInt8(std::string_view key, std::uint8_t value) {
    return writeBytes(key, std::span(&value, 1));
}

} // namespace kestrowind
