#include "Shared/Process/TerminationSignals.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

namespace kestrowind {
namespace {

TEST(TerminationSignalsDeathTest, EndAProcessWhoseEventLoopHangs) {
    EXPECT_EXIT(
        {
            const TerminationSignals signals(std::chrono::seconds(1));
            ::raise(SIGTERM);
            for (;;)
                ::pause();
        },
        testing::ExitedWithCode(EXIT_FAILURE), "");
}

} // namespace
} // namespace kestrowind
