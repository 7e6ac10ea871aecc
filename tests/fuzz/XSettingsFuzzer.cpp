#include "platform/linux/display/XSettings.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes = fuzzBytes(data, size);
    const QByteArray text = xsettingsText(bytes, "Gtk/FontName");
    expect(bytes.contains(text));
    return 0;
}
