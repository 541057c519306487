#include "ThisSystem.h"

#include "Platform/LoginItem.h"

namespace kestrowind {
namespace {

TEST(LoginItemContract, IsWhatItWasLastSetToOrSaysWhyNot) {
    ThisSystem::Login login;
    const std::unique_ptr<LoginItem> item = login.item();
    // A Mac refuses a program that is in no bundle, and may want the user's consent first.
    const auto registered = item->registerApplication();
    EXPECT_EQ(item->isEnabled(), registered.has_value())
        << "unless System Settings asks for consent first";
    EXPECT_TRUE(registered || !registered.error().isEmpty());
    const auto unregistered = item->unregisterApplication();
    EXPECT_FALSE(item->isEnabled());
    EXPECT_TRUE(unregistered || !unregistered.error().isEmpty());
}

} // namespace
} // namespace kestrowind
