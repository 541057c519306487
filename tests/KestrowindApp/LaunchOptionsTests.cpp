#include "KestrowindApp/LaunchOptions.h"

#include "Support/QtPrinters.h"

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;
using Task = LaunchOptions::Task;

TEST(LaunchOptions, KnowItsTasksAndRefuseWhatIsNeitherKeyNorValue) {
    struct Row {
        const char* arguments;
        std::optional<Task> task;
        const char* refused = "";
    };
    for (const auto& [arguments, task, refused] : {
             Row{"", Task::run},
             Row{"-ActivatePreset help -platform offscreen -psn_0_123 -NSMode YES", Task::run},
             Row{"-CloseMainWindowAfterSeconds -5 -StartHidden", Task::run},
             Row{"-PrintReadings json -h --bogus", Task::showHelp},
             Row{"-StartHidden --help", Task::showHelp},
             Row{"-v", Task::showVersion},
             Row{"--version", Task::showVersion},
             Row{"-PrintReadings xml --bogus help -help -DumpSMCKeys", Task::dumpSMCKeys},
             Row{"-DUMPSMCKEYS", Task::run},
             Row{"-StartHidden YES --bogus 5 -help", std::nullopt, "\"--bogus\""},
             Row{"-StartHidden YES help", std::nullopt, "\"help\""},
             Row{"-5", std::nullopt, "\"-5\""},
             Row{"-PrintReadings", std::nullopt, "text or json"},
             Row{"-PrintReadings xml", std::nullopt, "text or json"},
         }) {
        const auto options =
            LaunchOptions::parse(QString::fromLatin1(arguments).split(u' ', Qt::SkipEmptyParts));
        EXPECT_EQ(options ? std::optional(options->task) : std::nullopt, task) << arguments;
        EXPECT_TRUE(options || options.error().contains(QLatin1StringView(refused))) << arguments;
    }
}

} // namespace
} // namespace kestrowind
