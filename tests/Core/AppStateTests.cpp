#include "Core/AppState.h"
#include "Core/CanonicalUuid.h"
#include "Platform/Platform.h"
#include "Shared/HelperShared/HelperConstants.h"
#include "Simulator/SimulatedSMC.h"
#include "Support/FakeHelperConnection.h"
#include "Support/FakeSystemInformation.h"
#include "Support/TestDefaults.h"

#include <QTest>
#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(AppState, BeginsWithTheNamedPresetForThisRunOnly) {
    struct Row {
        const char* name;
        std::optional<QUuid> active;
        std::size_t pushes; ///< beside the one with every sample
    };
    for (const auto& [name, active, pushes] : {
             Row{"Full Speed", FanPreset::fullSpeedID, 1},
             Row{"Automatic", std::nullopt, 1},
             Row{"automatic", FanPreset::coolID, 0},
             Row{"Nobody's", FanPreset::coolID, 0},
         }) {
        const TestHome home;
        const QString key = u"activePresetID"_s;
        home.defaults()->setString(key, uuidText(FanPreset::coolID));
        auto smc = std::make_shared<SimulatedSMC>();
        smc->setByte("FNum", 1);
        for (const char* fanKey : {"F0Ac", "F0Tg", "F0Mn", "F0Mx"})
            smc->setFloat(fanKey, 1200);
        auto information = std::make_unique<FakeSystemInformation>();
        information->files = {QString::fromLatin1(HelperConstants::daemonPlistPath),
                              QString::fromLatin1(HelperConstants::helperInstallPath)};
        FakeHelper helper;
        Platform platform;
        platform.userDefaults = home.defaults({u"-ActivatePreset"_s, QString::fromLatin1(name)});
        platform.information = std::move(information);
        platform.scriptRunner = std::make_unique<ProcessScriptRunner>(QString());
        platform.helperConnection = helper.factory();
        platform.smc = [&] { return smc; };
        const AppState state(platform);
        EXPECT_EQ(state.presets().activePresetID(), active) << name;
        EXPECT_EQ(home.defaults()->string(key), uuidText(FanPreset::coolID)) << name;
        QTest::qWait(250); // past the delay of a push
        EXPECT_EQ(helper.calls.size(), 1 + pushes) << name;
    }
}

} // namespace
} // namespace kestrowind
