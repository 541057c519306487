#include "Shared/Process/TerminationSignals.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

namespace kestrowind {
namespace {

TEST(TerminationSignals, AreTakenInTurnUnlessTheyAreIgnored) {
    using Signal = TerminationSignals::Signal;
    std::signal(SIGHUP, SIG_IGN);
    {
        TerminationSignals signals;
        for (const int number : {SIGTERM, SIGHUP, SIGINT})
            ::raise(number);
        EXPECT_EQ(signals.take().value_or(Signal()).number, SIGTERM);
        EXPECT_EQ(signals.take().value_or(Signal()).number, SIGINT);
        EXPECT_FALSE(signals.take());
    }
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
    EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL) << "and the system's again afterwards";
}

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
