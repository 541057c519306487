#include "KestrowindApp/AppDelegate.h"

#include "Core/AppState.h"
#include "Core/PreviewHelperClient.h"
#include "Platform/Platform.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/TestDefaults.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using Reply = ApplicationDelegate::TerminateReply;
using testing::ElementsAre;

/// A helper that notes what it is asked for.
class NotingHelper final : public PreviewHelperClient {
public:
    explicit NotingHelper(std::vector<std::string>& notes)
        : m_notes(notes) {}

    QCoro::Task<void> releaseControl() override {
        m_notes.emplace_back("release");
        co_return;
    }
    QCoro::Task<void> shutDownDaemon() override {
        m_notes.emplace_back("shut down");
        co_return;
    }

private:
    std::vector<std::string>& m_notes;
};

class AppDelegateTest : public testing::Test {
protected:
    std::vector<std::string> m_notes;
    TestHome m_home;
    std::unique_ptr<UserDefaults> m_defaults = m_home.defaults();
    AppState m_appState = makeState();
    Platform m_platform;
    AppDelegate m_delegate{m_platform};

private:
    AppState makeState() {
        auto telemetry = std::make_unique<TelemetryStore>(
            *m_defaults, [] { return std::make_shared<SimulatedSMC>(); });
        auto helper = std::make_unique<NotingHelper>(m_notes);
        auto presets = std::make_unique<PresetStore>(2, *m_defaults,
                                                     PresetStore::Storage{.folder = m_home.path()});
        auto engine = std::make_unique<ControlEngine>(*telemetry, *presets, *helper);
        return AppState(std::move(telemetry), std::move(helper), std::move(presets),
                        std::move(engine));
    }
};

TEST_F(AppDelegateTest, OpenedAgainItShowsTheWindowOnlyWhenNoneIsVisible) {
    int shown = 0;
    EXPECT_TRUE(m_delegate.applicationShouldHandleReopen(false)) << "there is no state yet";
    m_delegate.setAppState(&m_appState);
    EXPECT_TRUE(m_delegate.applicationShouldHandleReopen(false)) << "nobody can open it yet";
    m_appState.setOpenMainWindow([&shown] { ++shown; });
    EXPECT_TRUE(m_delegate.applicationShouldHandleReopen(true));
    EXPECT_EQ(shown, 0);
    EXPECT_TRUE(m_delegate.applicationShouldHandleReopen(false));
    EXPECT_EQ(shown, 1);
}

TEST_F(AppDelegateTest, TheEndWaitsUntilTheFansAreReleasedAndTheHelperIsDown) {
    EXPECT_EQ(m_delegate.applicationShouldTerminate(), Reply::now) << "nothing to hand back";
    m_delegate.setAppState(&m_appState);
    QSignalSpy replies(&m_delegate, &AppDelegate::replyToShouldTerminate);
    EXPECT_EQ(m_delegate.applicationShouldTerminate(), Reply::later);
    EXPECT_EQ(m_delegate.applicationShouldTerminate(), Reply::later) << "asked once more";
    EXPECT_EQ(replies.count(), 0) << "no reply before the answer";
    ASSERT_TRUE(replies.wait());
    EXPECT_THAT(m_notes, ElementsAre("release", "shut down"));
    EXPECT_EQ(replies.count(), 1);
}

} // namespace
} // namespace kestrowind
