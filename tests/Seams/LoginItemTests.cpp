#include "ThisSystem.h"

#include "Platform/LoginItem.h"

namespace kestrowind {
namespace {

class LoginItemContract : public testing::Test {
protected:
    void TearDown() override {
        if (!m_wasEnabled && m_item->isEnabled()) {
            EXPECT_TRUE(m_item->unregisterApplication());
        }
    }

    ThisSystem::Login m_login;
    std::unique_ptr<LoginItem> m_item = m_login.item();
    bool m_wasEnabled = m_item->isEnabled();
};

TEST_F(LoginItemContract, IsWhatItWasLastSetToOrSaysWhyNot) {
    // A Mac refuses a program that is in no bundle, and may want the user's consent first.
    const auto registered = m_item->registerApplication();
    EXPECT_EQ(m_item->isEnabled(), registered.has_value())
        << "unless System Settings asks for consent first";
    EXPECT_TRUE(registered || !registered.error().isEmpty());
    const auto unregistered = m_item->unregisterApplication();
    EXPECT_FALSE(m_item->isEnabled());
    EXPECT_TRUE(unregistered || !unregistered.error().isEmpty());
}

} // namespace
} // namespace kestrowind
