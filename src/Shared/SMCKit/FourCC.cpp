#include "Shared/SMCKit/FourCC.h"

namespace kestrowind {

std::string smcFourCCString(std::uint32_t code) {
    if ((code & 0x80808080U) != 0)
        return "????";
    std::string text(4, '\0');
    for (std::size_t i = 0; i < 4; ++i)
        text[i] = static_cast<char>((code >> (24 - 8 * i)) & 0xFFU);
    return text;
}

} // namespace kestrowind
