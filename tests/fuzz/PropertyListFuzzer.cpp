#include "plist/PropertyList.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto value = propertyListFromBytes(fuzzBytes(data, size));
    if (!value || !value->isValid())
        return 0;
    // What is written is read again, and reads the same from then on.
    const QByteArray written = xmlPropertyList(*value);
    if (written.isEmpty())
        return 0; // nothing but a date that XML cannot hold
    const auto again = propertyListFromBytes(written);
    expect(again.has_value());
    expect(xmlPropertyList(*again) ==
           xmlPropertyList(propertyListFromBytes(xmlPropertyList(*again)).value()));
    return 0;
}
