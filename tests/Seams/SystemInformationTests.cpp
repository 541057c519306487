#include "ThisSystem.h"

#include "Support/QtPrinters.h"

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(SystemInformationContract, SaysWhatThereIsAndNothingOfTheRest) {
    ThisSystem::Machine machine;
    const auto made = machine.information();
    const SystemInformation& information = *made;
    for (const char* name : {"hw.model", "machdep.cpu.brand_string"}) {
        const auto text = information.sysctl(name);
        ASSERT_TRUE(text) << name;
        EXPECT_FALSE(text->isEmpty());
        EXPECT_FALSE(text->contains(QChar())) << "the text ends before its NUL";
    }
    EXPECT_EQ(information.sysctl("hw.no_such_name"), std::nullopt);
    EXPECT_FALSE(information.operatingSystemVersion().isEmpty());
    EXPECT_EQ(information.bundleText(u"NoSuchKey"_s), std::nullopt);
    EXPECT_EQ(information.bundleResource(u"no-such-file"_s), std::nullopt);
    EXPECT_TRUE(information.fileExists(u"/Library/LaunchDaemons"_s));
    EXPECT_FALSE(information.fileExists(u"/Library/LaunchDaemons/no-such-file"_s));
    EXPECT_TRUE(information.applicationSupportFolder().endsWith(u"/Kestrowind"_s));
}

} // namespace
} // namespace kestrowind
