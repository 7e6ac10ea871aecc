#include "platform/linux/login/DesktopEntry.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes = fuzzBytes(data, size);
    if (const auto entry = desktopEntryFromBytes(bytes))
        for (const QByteArray& value : *entry)
            expect(unescapedValue(value).size() <= value.size());
    if (const auto arguments = execArguments(bytes))
        expect(!arguments->isEmpty() && !arguments->first().isEmpty() && !arguments->first().contains('\0'));
    if (!bytes.isEmpty() && !bytes.contains('\0')) { // any path is found again in what is written for it
        const QByteArray written = "[Desktop Entry]\nExec=" + execValue(bytes) + '\n';
        expect(execArguments(desktopEntryFromBytes(written)->value("Exec")) == QList<QByteArray>{bytes});
    }
    return 0;
}
