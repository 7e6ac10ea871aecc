// Reads any bytes as a saved history: whatever they are, there are records or there is a fault.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "plist/KeyedArchive.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const quindle::ArchivedRecords read = quindle::recordsFromKeyedArchive(bytes);
    if (!read.fault.isEmpty() && !read.records.isEmpty())
        std::abort();
    return 0;
}
