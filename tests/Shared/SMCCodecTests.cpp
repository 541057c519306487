#include "Shared/SMCKit/FourCC.h"
#include "Shared/SMCKit/SMCCodec.h"

#include <gmock/gmock.h>

namespace kestrowind {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

TEST(FourCC, PacksAnyNameAndUnpacksToFourCharactersOrQuestionMarks) {
    const std::pair<std::string_view, std::uint32_t> packed[] = {
        {"FNum", 0x464E756D}, {"#KEY", 0x234B4559},  {"flt ", 0x666C7420}, {"", 0},
        {"ui8", 0x756938},    {"F10Ac", 0x31304163}, {"\xC3\xA9", 0xC3A9}};
    for (const auto& [name, code] : packed)
        EXPECT_EQ(smcFourCC(name), code) << name;
    const std::pair<std::uint32_t, std::string> unpacked[] = {
        {0x464E756D, "FNum"},         {0x666C7420, "flt "}, {0, "\0\0\0\0"s},
        {0x7F00417F, "\x7F\0A\x7F"s}, {0xFF000000, "????"}, {0x41414180, "????"}};
    for (const auto& [code, name] : unpacked)
        EXPECT_EQ(smcFourCCString(code), name) << std::hex << code;
}

TEST(SMCCodec, FloatsAreLittleEndianAndCountsBigEndian) {
    EXPECT_EQ(decodeFloat(std::array<std::uint8_t, 4>{0x00, 0x00, 0x48, 0x42}), 50.0F);
    EXPECT_THAT(encodeFloat(50.0F), ElementsAre(0x00, 0x00, 0x48, 0x42));
    EXPECT_EQ(decodeBigEndian32(std::array<std::uint8_t, 4>{0x00, 0x00, 0x04, 0xD2}), 1234U);
    EXPECT_THAT(encodeBigEndian32(0xFE010203U), ElementsAre(0xFE, 0x01, 0x02, 0x03));
}

} // namespace
} // namespace kestrowind
