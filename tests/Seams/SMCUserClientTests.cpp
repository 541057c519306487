#include "ThisSystem.h"

#include "Shared/SMCKit/FourCC.h"

namespace kestrowind {
namespace {

class SMCUserClientContract : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"AppleSMCKeysEndpoint", "AppleSMC"}) {
            if (m_service == 0)
                m_service = m_client->matchingService(name);
        }
        if (m_service == 0)
            GTEST_SKIP() << "this machine has no SMC, as a virtual one may";
    }

    /// The kernel's code; the SMC's own result is in the answer.
    std::int32_t describe(const char* key) {
        return m_client->callStructMethod(m_connection, smcStructMethod,
                                          {.key = smcFourCC(key), .data8 = SMCCommand::getKeyInfo},
                                          m_answer);
    }

    ThisSystem::Kernel m_kernel;
    std::shared_ptr<SMCUserClient> m_client = m_kernel.userClient();
    std::uint32_t m_service = 0;
    std::uint32_t m_connection = 0;
    SMCParamStruct m_answer;
};

TEST_F(SMCUserClientContract, DescribesTheKeysThatThereAreWhileItIsOpen) {
    EXPECT_EQ(m_client->matchingService("NoServiceOfThisName"), 0U);
    EXPECT_NE(m_client->open(0, 0).code, 0);
    const auto [code, connection] = m_client->open(m_service, 0);
    m_client->releaseService(m_service);
    ASSERT_EQ(code, 0);
    EXPECT_NE(connection, 0U);
    m_connection = connection;

    EXPECT_EQ(describe("zzzz"), 0);
    EXPECT_NE(m_answer.result, 0) << "the kernel is content, the SMC not";
    EXPECT_EQ(describe("#KEY"), 0);
    EXPECT_EQ(m_answer.result, 0);
    EXPECT_EQ(m_answer.keyInfo.dataSize, 4U);
    EXPECT_EQ(smcFourCCString(m_answer.keyInfo.dataType), "ui32");
    SMCParamStruct value;
    EXPECT_EQ(
        m_client->callStructMethod(
            connection, smcStructMethod,
            {.key = smcFourCC("#KEY"), .keyInfo = m_answer.keyInfo, .data8 = SMCCommand::readKey},
            value),
        0);
    EXPECT_EQ(value.result, 0);
    m_client->close(connection);
    EXPECT_NE(describe("#KEY"), 0);
}

} // namespace
} // namespace kestrowind
