#include "platform/linux/pictures/PairKerning.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const PairKerning kerning([data, size](std::uint32_t offset) {
        return offset < size && offset + 1 < size
                   ? static_cast<std::uint16_t>(data[offset] << 8U | data[offset + 1])
                   : std::uint16_t{0};
    });
    for (const std::uint32_t glyph : {0U, 5U, 36U, 0xffffU, 0x10000U})
        expect(std::abs(kerning.between(glyph, 57)) <= 64 * 0x8000);
    return 0;
}
