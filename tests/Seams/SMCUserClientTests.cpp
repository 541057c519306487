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

    SMCParamStruct describe(std::uint32_t connection, const char* key) {
        SMCParamStruct answer;
        EXPECT_EQ(m_client->callStructMethod(
                      connection, smcStructMethod,
                      {.key = smcFourCC(key), .data8 = SMCCommand::getKeyInfo}, answer),
                  0)
            << key;
        return answer;
    }

    ThisSystem::Kernel m_kernel;
    std::shared_ptr<SMCUserClient> m_client = m_kernel.userClient();
    std::uint32_t m_service = 0;
};

TEST_F(SMCUserClientContract, DescribesTheKeysThatThereAreAndNoOthers) {
    EXPECT_EQ(m_client->matchingService("NoServiceOfThisName"), 0U);
    const auto [code, connection] = m_client->open(m_service, 0);
    m_client->releaseService(m_service);
    ASSERT_EQ(code, 0);
    EXPECT_NE(connection, 0U);

    const SMCParamStruct keyCount = describe(connection, "#KEY");
    EXPECT_EQ(keyCount.result, 0);
    EXPECT_EQ(keyCount.keyInfo.dataSize, 4U);
    EXPECT_EQ(smcFourCCString(keyCount.keyInfo.dataType), "ui32");
    EXPECT_NE(describe(connection, "zzzz").result, 0) << "the kernel is content, the SMC not";

    SMCParamStruct value;
    EXPECT_EQ(
        m_client->callStructMethod(
            connection, smcStructMethod,
            {.key = smcFourCC("#KEY"), .keyInfo = keyCount.keyInfo, .data8 = SMCCommand::readKey},
            value),
        0);
    EXPECT_EQ(value.result, 0);
    m_client->close(connection);
}

TEST_F(SMCUserClientContract, RefusesAServiceAndAConnectionThatAreNone) {
    EXPECT_NE(m_client->open(0, 0).code, 0);
    const auto [code, connection] = m_client->open(m_service, 0);
    ASSERT_EQ(code, 0);
    m_client->close(connection);
    SMCParamStruct answer;
    EXPECT_NE(m_client->callStructMethod(
                  connection, smcStructMethod,
                  {.key = smcFourCC("#KEY"), .data8 = SMCCommand::getKeyInfo}, answer),
              0);
    m_client->releaseService(m_service);
}

} // namespace
} // namespace kestrowind
