#include "Core/PresetCoding.h"
#include "Core/PresetFile.h"
#include "Fuzz/Require.h"

using namespace kestrowind;

/// presets.json and the file of one preset: what is accepted can be written, and reads back the
/// same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto presets = decodePresets(content);
    const auto imported = PresetFile::decode(content);
    if (!presets) {
        KESTROWIND_REQUIRE(!imported);
        return 0;
    }
    if (imported) {
        const auto exported = PresetFile::encode(*imported);
        KESTROWIND_REQUIRE(exported);
        KESTROWIND_REQUIRE(PresetFile::decode(*exported)->curves == imported->curves);
    }
    const auto written = encodePresets(*presets);
    KESTROWIND_REQUIRE(written);
    KESTROWIND_REQUIRE(decodePresets(*written) == *presets);
    for (const FanPreset& preset : *presets) {
        for (const FanCurve& curve : preset.curves) {
            for (const double temperature : {-1e9, 20.0, 63.5, 110.0, 1e9}) {
                const double percent = curve.percent(temperature);
                KESTROWIND_REQUIRE(percent == percent);
            }
        }
    }
    return 0;
}
