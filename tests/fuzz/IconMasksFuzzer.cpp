#include "platform/linux/pictures/IconMasks.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::size_t pixels = 0;
    for (const Mask& mask : masksOf(fuzzBytes(data, size))) {
        expect(mask.width > 0 && mask.width == mask.height);
        expect(mask.coverage.size() ==
               static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height));
        pixels += mask.coverage.size();
    }
    expect(pixels <= size);
    return 0;
}
