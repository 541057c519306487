#include "UI/BothSchemes.h"
#include "UI/Presets/PresetsModel.h"
#include "UI/RoomView.h"
#include "UI/TestState.h"

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

TEST(PictureTests, CardsShowTheirCurvesAndWhichIsActive) {
    TestState state;
    state.presets().setActivePresetID(FanPreset::coolID);
    PresetsModel model(*state.appState, state.fileDialogs);
    RoomView view(u"Presets/PresetsRootView.qml"_s, model, {680, 480});
    view.showActive();
    EXPECT_TRUE(looksLike(u"Presets/cards"_s, inBothSchemes(view, *view.engine())));
}

} // namespace
} // namespace kestrowind
