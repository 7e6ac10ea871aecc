#include "mac/SerialNumberDecoding.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString serial = QString::fromUtf8(fuzzBytes(data, size));
    const auto date = buildDate(serial);
    expect(!date || (date->isValid() && date->date().year() >= 1999 && date->date().year() <= 2020));
    expect(serial.endsWith(configurationCode(serial)));
    expect(serial.contains(dateCharacters(serial)));
    return 0;
}
