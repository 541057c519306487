#include "Shared/SMCKit/macOS/IOKitUserClient.h"
#include "Shared/SMCMachine.h"
#include "Simulator/Link/SMCWire.h"

#include <IOKit/IOKitLib.h>

namespace kestrowind {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A kernel with an SMC behind IOKit's functions. Handles are names that it counts, as a Mac's are:
/// what is not released in the end is a leak.
struct Kernel {
    Kernel() { current = this; }
    ~Kernel() {
        EXPECT_THAT(held, IsEmpty());
        EXPECT_EQ(smc->openConnections(), 0U);
        current = nullptr;
    }

    static inline Kernel* current = nullptr;

    std::shared_ptr<SimulatedSMC> smc = std::make_shared<SimulatedSMC>();
    bool isDeviceGone = false;
    std::vector<std::string> journal;
    std::multiset<std::uintptr_t> held; ///< dictionaries and services
    std::map<std::uintptr_t, std::string> dictionaries;
    std::uintptr_t lastDictionary = 0;
};

constexpr kern_return_t noDevice = static_cast<kern_return_t>(0xe00002c0);
constexpr mach_port_t thisTask = 0x203;

} // namespace
} // namespace kestrowind

using kestrowind::Kernel;

extern "C" {
const mach_port_t kIOMainPortDefault = 0;
mach_port_t mach_task_self_ = kestrowind::thisTask;

CFMutableDictionaryRef IOServiceMatching(const char* name) {
    Kernel& kernel = *Kernel::current;
    const std::uintptr_t dictionary = 0x1000 + ++kernel.lastDictionary;
    kernel.dictionaries[dictionary] = name;
    kernel.held.insert(dictionary);
    return reinterpret_cast<CFMutableDictionaryRef>(dictionary);
}

io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching) {
    Kernel& kernel = *Kernel::current;
    const auto dictionary = reinterpret_cast<std::uintptr_t>(matching);
    EXPECT_EQ(mainPort, kIOMainPortDefault);
    EXPECT_EQ(kernel.held.erase(dictionary), 1U);
    const std::string& name = kernel.dictionaries[dictionary];
    kernel.journal.push_back("look for " + name);
    const io_service_t service = kernel.smc->matchingService(name);
    if (service != IO_OBJECT_NULL)
        kernel.held.insert(service);
    return service;
}

kern_return_t IOObjectRelease(io_object_t object) {
    Kernel::current->journal.emplace_back("release");
    EXPECT_EQ(Kernel::current->held.erase(object), 1U);
    return 0;
}

kern_return_t IOServiceOpen(io_service_t service, mach_port_t owningTask, uint32_t type,
                            io_connect_t* connect) {
    Kernel::current->journal.emplace_back("open");
    EXPECT_TRUE(Kernel::current->held.contains(service));
    EXPECT_EQ(owningTask, kestrowind::thisTask);
    const auto [code, connection] = Kernel::current->smc->open(service, type);
    *connect = connection;
    return code;
}

kern_return_t IOServiceClose(io_connect_t connect) {
    Kernel::current->journal.emplace_back("close");
    Kernel::current->smc->close(connect);
    return 0;
}

kern_return_t IOConnectCallStructMethod(mach_port_t connection, uint32_t selector,
                                        const void* inputStruct, size_t inputStructCnt,
                                        void* outputStruct, size_t* outputStructCnt) {
    using kestrowind::SMCParamStruct;
    if (Kernel::current->isDeviceGone)
        return kestrowind::noDevice;
    if (inputStructCnt != sizeof(SMCParamStruct) || *outputStructCnt != sizeof(SMCParamStruct))
        return kestrowind::IOReturn::badArgument;
    return Kernel::current->smc->callStructMethod(connection, selector,
                                                  *static_cast<const SMCParamStruct*>(inputStruct),
                                                  *static_cast<SMCParamStruct*>(outputStruct));
}
}

namespace kestrowind {
namespace {

TEST(IOKitUserClient, GivesBackWhateverTheKernelLent) {
    Kernel kernel;
    EXPECT_TRUE(SMCConnection::open(std::make_shared<IOKitUserClient>()));
    EXPECT_THAT(kernel.journal,
                ElementsAre("look for AppleSMCKeysEndpoint", "open", "release", "close"));

    kernel.journal.clear();
    kernel.smc->setServices(SimulatedSMC::Services::secondOnly);
    kernel.smc->setOpenResult(-536870207);
    EXPECT_EQ(failure(SMCConnection::open(std::make_shared<IOKitUserClient>())),
              "IOServiceOpen failed (0xe00002c1)");
    EXPECT_THAT(kernel.journal, ElementsAre("look for AppleSMCKeysEndpoint", "look for AppleSMC",
                                            "open", "release"));
    kernel.smc->setServices(SimulatedSMC::Services::none);
    EXPECT_EQ(failure(SMCConnection::open(std::make_shared<IOKitUserClient>())),
              "AppleSMC service not found");
}

TEST(IOKitUserClient, CarriesRecordsBothWaysUntilTheDeviceIsLost) {
    Kernel kernel;
    kernel.smc->setFloat("F0Tg", 2000);
    const auto connection = SMCConnection::open(std::make_shared<IOKitUserClient>()).value();
    EXPECT_EQ(failure(connection->writeFloat("F0Tg", 3100)), "");
    EXPECT_EQ(connection->readFloat("F0Tg"), 3100.0F);
    EXPECT_EQ(failure(connection->readFloat("zzzz")), "SMC key zzzz error (result 132)");
    kernel.smc->setFault("F0Tg", SimulatedSMC::Fault::timesOut);
    EXPECT_EQ(failure(connection->readFloat("F0Tg")), "SMC call failed (0xe00002d6)");
    kernel.isDeviceGone = true;
    EXPECT_EQ(failure(connection->readFloat("F0Tg")), "SMC call failed (0xe00002c0)");
}

} // namespace
} // namespace kestrowind
