#include "Simulator/SimulatedSMC.h"

#include "Shared/SMCKit/FourCC.h"
#include "Shared/SMCKit/SMCCodec.h"
#include "Simulator/Link/SMCWire.h"

#include <algorithm>
#include <utility>

namespace kestrowind {
namespace {

constexpr std::uint32_t firstService = 0x101;
constexpr std::uint32_t secondService = 0x102;
constexpr std::uint32_t keyCountName = smcFourCC("#KEY");
constexpr std::size_t valueCapacity = 32;

} // namespace

SimulatedSMC::SimulatedSMC()
    : m_keyCount{.key = {.name = keyCountName, .type = smcFourCC("ui32"), .size = 4},
                 .writeRule = [](std::span<const std::uint8_t>) { return resultRefused; }} {}

SimulatedSMC::Slot* SimulatedSMC::find(std::uint32_t name) {
    return const_cast<Slot*>(std::as_const(*this).find(name));
}

const SimulatedSMC::Slot* SimulatedSMC::find(std::uint32_t name) const {
    if (const auto found = m_indexes.find(name); found != m_indexes.end())
        return &m_slots[found->second];
    return name == keyCountName ? &m_keyCount : nullptr;
}

void SimulatedSMC::setKey(Key key) {
    const std::lock_guard lock(m_mutex);
    key.bytes.resize(std::min<std::size_t>(key.size, valueCapacity));
    if (const auto found = m_indexes.find(key.name); found != m_indexes.end()) {
        m_slots[found->second].key = std::move(key);
        return;
    }
    m_indexes.emplace(key.name, m_slots.size());
    m_slots.push_back({.key = std::move(key)});
}

void SimulatedSMC::setKey(std::string_view name, std::string_view type,
                          std::vector<std::uint8_t> bytes) {
    const auto size = static_cast<std::uint32_t>(bytes.size());
    setKey({.name = smcFourCC(name),
            .type = smcFourCC(type),
            .size = size,
            .bytes = std::move(bytes)});
}

void SimulatedSMC::setFloat(std::string_view name, float value) {
    const auto bytes = encodeFloat(value);
    setKey(name, "flt ", {bytes.begin(), bytes.end()});
}

void SimulatedSMC::setByte(std::string_view name, std::uint8_t value, std::string_view type) {
    setKey(name, type, {value});
}

void SimulatedSMC::removeKey(std::string_view name) {
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_slots,
                  [code = smcFourCC(name)](const Slot& slot) { return slot.key.name == code; });
    m_indexes.clear();
    for (std::size_t index = 0; index < m_slots.size(); ++index)
        m_indexes.emplace(m_slots[index].key.name, index);
}

void SimulatedSMC::store(std::string_view name, std::span<const std::uint8_t> bytes) {
    const std::lock_guard lock(m_mutex);
    if (Slot* slot = find(smcFourCC(name)); slot && slot->key.bytes.size() == bytes.size())
        std::ranges::copy(bytes, slot->key.bytes.begin());
}

void SimulatedSMC::storeFloat(std::string_view name, float value) {
    store(name, encodeFloat(value));
}

void SimulatedSMC::holdValue(std::string_view name, std::vector<std::uint8_t> bytes) {
    const std::lock_guard lock(m_mutex);
    if (Slot* slot = find(smcFourCC(name)))
        slot->heldBytes = std::move(bytes);
}

void SimulatedSMC::holdType(std::string_view name, std::string_view type) {
    const std::lock_guard lock(m_mutex);
    if (Slot* slot = find(smcFourCC(name)))
        slot->heldType = smcFourCC(type);
}

void SimulatedSMC::setFault(std::string_view name, std::optional<Fault> fault) {
    const std::lock_guard lock(m_mutex);
    Slot* slot = find(smcFourCC(name));
    if (slot == nullptr)
        return;
    slot->fault = fault;
    if (!fault) {
        slot->heldBytes.reset();
        slot->heldType.reset();
    }
}

void SimulatedSMC::setWriteRule(std::string_view name, WriteRule rule) {
    const std::lock_guard lock(m_mutex);
    if (Slot* slot = find(smcFourCC(name)))
        slot->writeRule = std::move(rule);
}

void SimulatedSMC::setWriteEffect(std::string_view name, std::function<void()> effect) {
    const std::lock_guard lock(m_mutex);
    if (Slot* slot = find(smcFourCC(name)))
        slot->writeEffect = std::move(effect);
}

void SimulatedSMC::setServices(Services services) {
    const std::lock_guard lock(m_mutex);
    m_services = services;
}

void SimulatedSMC::setOpenResult(std::int32_t code) {
    const std::lock_guard lock(m_mutex);
    m_openResult = code;
}

std::uint32_t SimulatedSMC::presentKeyCount() const {
    const auto missing = std::ranges::count(m_slots, Fault::missing, &Slot::fault);
    return static_cast<std::uint32_t>(m_slots.size() - static_cast<std::size_t>(missing));
}

const SimulatedSMC::Slot* SimulatedSMC::presentAt(std::uint32_t index) const {
    if (index >= m_slots.size())
        return nullptr;
    for (const Slot& slot : m_slots) {
        if (slot.fault != Fault::missing && index-- == 0)
            return &slot;
    }
    return nullptr;
}

SimulatedSMC::Key SimulatedSMC::visible(const Slot& slot) const {
    Key key = slot.key;
    if (&slot == &m_keyCount) {
        const auto bytes = encodeBigEndian32(presentKeyCount());
        key.bytes.assign(bytes.begin(), bytes.end());
    }
    if (slot.heldType)
        key.type = *slot.heldType;
    if (slot.heldBytes) {
        key.size = static_cast<std::uint32_t>(slot.heldBytes->size());
        key.bytes = *slot.heldBytes;
        key.bytes.resize(std::min(key.bytes.size(), valueCapacity));
    }
    return key;
}

std::vector<SimulatedSMC::Key> SimulatedSMC::keys() const {
    const std::lock_guard lock(m_mutex);
    std::vector<Key> keys;
    for (const Slot& slot : m_slots) {
        if (slot.fault != Fault::missing)
            keys.push_back(visible(slot));
    }
    return keys;
}

bool SimulatedSMC::hasKey(std::string_view name) const {
    const std::lock_guard lock(m_mutex);
    return find(smcFourCC(name)) != nullptr;
}

SimulatedSMC::Counts SimulatedSMC::counts() const {
    const std::lock_guard lock(m_mutex);
    return m_counts;
}

void SimulatedSMC::resetCounts() {
    const std::lock_guard lock(m_mutex);
    m_counts = {};
}

void SimulatedSMC::setCallObserver(std::function<void(const SMCParamStruct&)> observer) {
    const std::lock_guard lock(m_mutex);
    m_observer = std::move(observer);
}

std::uint32_t SimulatedSMC::matchingService(std::string_view className) {
    const std::lock_guard lock(m_mutex);
    if (className == "AppleSMCKeysEndpoint" && m_services == Services::both)
        return firstService;
    if (className == "AppleSMC" && m_services != Services::none)
        return secondService;
    return 0;
}

void SimulatedSMC::releaseService(std::uint32_t /*service*/) {}

SMCUserClient::Opened SimulatedSMC::open(std::uint32_t service, std::uint32_t connectionType) {
    const std::lock_guard lock(m_mutex);
    if (m_openResult != 0)
        return {.code = m_openResult};
    if ((service != firstService && service != secondService) || connectionType != 0)
        return {.code = IOReturn::badArgument};
    const std::uint32_t connection = m_nextConnection++;
    m_connections.insert(connection);
    return {.code = IOReturn::success, .connection = connection};
}

void SimulatedSMC::close(std::uint32_t connection) {
    const std::lock_guard lock(m_mutex);
    m_connections.erase(connection);
}

std::size_t SimulatedSMC::openConnections() const {
    const std::lock_guard lock(m_mutex);
    return m_connections.size();
}

std::int32_t SimulatedSMC::callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                            const SMCParamStruct& input, SMCParamStruct& output) {
    std::unique_lock lock(m_mutex);
    ++m_counts.calls;
    if (m_observer)
        m_observer(input);
    if (!m_connections.contains(connection))
        return IOReturn::notOpen;
    if (selector != smcStructMethod)
        return IOReturn::badArgument;
    output = {};
    const std::int32_t code = answer(input, output);
    if (const auto effect = code == IOReturn::success ? effectOf(input, output) : nullptr) {
        lock.unlock();
        effect();
    }
    return code;
}

std::function<void()> SimulatedSMC::effectOf(const SMCParamStruct& input,
                                             const SMCParamStruct& output) const {
    if (input.data8 != SMCCommand::writeKey || output.result != 0)
        return {};
    const Slot* slot = find(input.key);
    return slot ? slot->writeEffect : std::function<void()>();
}

std::int32_t SimulatedSMC::answer(const SMCParamStruct& input, SMCParamStruct& output) {
    if (input.data8 == SMCCommand::getKeyFromIndex) {
        ++m_counts.keyNames;
        if (const Slot* slot = presentAt(input.data32))
            output.key = slot->key.name;
        else
            output.result = resultNotFound;
        return IOReturn::success;
    }

    Slot* slot = find(input.key);
    if (slot == nullptr || slot->fault == Fault::missing) {
        output.result = resultNotFound;
        return IOReturn::success;
    }
    if (slot->fault == Fault::timesOut)
        return IOReturn::timeout;
    if (slot->fault == Fault::fails) {
        output.result = resultRefused;
        return IOReturn::success;
    }

    const Key key = visible(*slot);
    switch (input.data8) {
    case SMCCommand::getKeyInfo:
        ++m_counts.keyInfos;
        output.keyInfo = {key.size, key.type, key.attributes};
        break;
    case SMCCommand::readKey:
        ++m_counts.reads;
        std::ranges::copy(key.bytes, output.bytes.begin());
        break;
    case SMCCommand::writeKey:
        ++m_counts.writes;
        output.result = write(*slot, input);
        break;
    default:
        output.result = resultRefused;
    }
    return IOReturn::success;
}

std::uint8_t SimulatedSMC::write(Slot& slot, const SMCParamStruct& input) {
    if (input.keyInfo.dataSize != slot.key.size || slot.key.size > valueCapacity)
        return resultRefused;
    const std::span bytes = std::span(input.bytes).first(slot.key.size);
    if (slot.writeRule) {
        if (const std::uint8_t result = slot.writeRule(bytes); result != 0)
            return result;
    }
    slot.key.bytes.assign(bytes.begin(), bytes.end());
    return 0;
}

} // namespace kestrowind
