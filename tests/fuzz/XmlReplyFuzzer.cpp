#include "mac/ModelNameLookup.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto text = modelTextFromReply(QStringLiteral("F5YX"), fuzzBytes(data, size));
    expect(!text || (text->size() >= 3 && text->startsWith(u'(') && text->endsWith(u')')));
    return 0;
}
