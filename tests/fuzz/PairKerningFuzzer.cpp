#include "platform/linux/pictures/PairKerning.h"

#include <array>

#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const PairKerning kerning([data, size](std::uint32_t offset) {
        return offset < size && offset + 1 < size
                   ? static_cast<std::uint16_t>(data[offset] << 8U | data[offset + 1])
                   : std::uint16_t{0};
    });
    // One for each input: in a hostile table each pair takes thousands of reads.
    constexpr std::array<std::uint32_t, 5> glyphs{0, 5, 36, 0xffff, 0x10000};
    expect(std::abs(kerning.between(glyphs.at(size % glyphs.size()), 57)) <= 64 * 0x8000);
    return 0;
}
