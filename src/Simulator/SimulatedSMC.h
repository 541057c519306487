#pragma once

#include "Shared/SMCKit/SMCUserClient.h"

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrowind {

/// The SMC of a simulated Mac: a table of keys in a fixed order behind the kernel's user client.
///
/// The same class serves in process, for tests, and behind a socket, for whole programs. Every
/// failure that a real one can show can be switched on while it runs. May be used from any thread.
class SimulatedSMC final : public SMCUserClient {
public:
    /// What the SMC answers for a key or an index it does not have.
    static constexpr std::uint8_t resultNotFound = 132;
    /// What it answers for a command it refuses.
    static constexpr std::uint8_t resultRefused = 133;

    struct Key {
        std::uint32_t name = 0; ///< packed four-character code
        std::uint32_t type = 0; ///< packed four-character code
        std::uint32_t size = 0; ///< as announced by key info; the value holds at most 32 bytes
        std::uint8_t attributes = 0;
        std::vector<std::uint8_t> bytes = {};
    };

    enum class Fault {
        fails,    ///< the SMC answers with resultRefused
        timesOut, ///< the kernel call comes back with its time-out code
        missing,  ///< as if the machine did not have the key; later keys move up one index
    };

    enum class Services { both, secondOnly, none };

    /// How often each thing was asked for.
    struct Counts {
        int calls = 0;
        int reads = 0;
        int writes = 0;
        int keyInfos = 0;
        int keyNames = 0;
    };

    /// Decides about a write to one key: an SMC result, 0 to let the bytes in.
    using WriteRule = std::function<std::uint8_t(std::span<const std::uint8_t> bytes)>;

    SimulatedSMC();

    /// Appends a key, or replaces the one of that name in its place. Without one of that name,
    /// "#KEY" answers with the number of keys.
    void setKey(Key key);
    void setKey(std::string_view name, std::string_view type, std::vector<std::uint8_t> bytes);
    void setFloat(std::string_view name, float value);
    void setByte(std::string_view name, std::uint8_t value, std::string_view type = "ui8 ");
    void removeKey(std::string_view name);

    /// What the hardware changes of itself: stores bytes into an existing key, unless it is held.
    void store(std::string_view name, std::span<const std::uint8_t> bytes);
    void storeFloat(std::string_view name, float value);

    /// Replaces a key's value or type and holds it against the hardware, until setFault(nullopt).
    void holdValue(std::string_view name, std::vector<std::uint8_t> bytes);
    void holdType(std::string_view name, std::string_view type);
    /// Switches a fault on, or with nullopt every fault and hold of the key off again.
    void setFault(std::string_view name, std::optional<Fault> fault);
    void setWriteRule(std::string_view name, WriteRule rule);
    /// Called after a write to the key went in, on the writer's thread and without the lock: what
    /// the hardware does about it at once may store into other keys.
    void setWriteEffect(std::string_view name, std::function<void()> effect);

    void setServices(Services services);
    void setOpenResult(std::int32_t code);

    /// The keys in index order as they are now, faults and holds applied.
    [[nodiscard]] std::vector<Key> keys() const;
    /// Whether the table has the key at all, even one that is missing by a fault for now.
    [[nodiscard]] bool hasKey(std::string_view name) const;
    [[nodiscard]] Counts counts() const;
    void resetCounts();
    /// Called with the lock held before each struct-method call, for tests that watch the order.
    void setCallObserver(std::function<void(const SMCParamStruct&)> observer);

    [[nodiscard]] std::uint32_t matchingService(std::string_view className) override;
    void releaseService(std::uint32_t service) override;
    [[nodiscard]] Opened open(std::uint32_t service, std::uint32_t connectionType) override;
    void close(std::uint32_t connection) override;
    [[nodiscard]] std::int32_t callStructMethod(std::uint32_t connection, std::uint32_t selector,
                                                const SMCParamStruct& input,
                                                SMCParamStruct& output) override;
    [[nodiscard]] std::size_t openConnections() const;

private:
    struct Slot {
        Key key;
        std::optional<Fault> fault = {};
        std::optional<std::vector<std::uint8_t>> heldBytes = {};
        std::optional<std::uint32_t> heldType = {};
        WriteRule writeRule = {};
        std::function<void()> writeEffect = {};
    };

    Slot* find(std::uint32_t name);
    const Slot* find(std::uint32_t name) const;
    [[nodiscard]] std::uint32_t presentKeyCount() const;
    [[nodiscard]] const Slot* presentAt(std::uint32_t index) const;
    [[nodiscard]] Key visible(const Slot& slot) const;
    std::int32_t answer(const SMCParamStruct& input, SMCParamStruct& output);
    [[nodiscard]] std::function<void()> effectOf(const SMCParamStruct& input,
                                                 const SMCParamStruct& output) const;
    std::uint8_t write(Slot& slot, const SMCParamStruct& input);

    mutable std::mutex m_mutex;
    std::vector<Slot> m_slots;
    std::map<std::uint32_t, std::size_t> m_indexes;
    std::set<std::uint32_t> m_connections;
    std::uint32_t m_nextConnection = 1;
    Services m_services = Services::both;
    std::int32_t m_openResult = 0;
    Counts m_counts;
    std::function<void(const SMCParamStruct&)> m_observer;
    Slot m_keyCount; ///< answers for "#KEY" unless the table has a key of that name
};

} // namespace kestrowind
