// Reads any bytes as a saved history: whatever they are, the result is records or a fault. Records are
// written again; that must read as the same records, and be the same bytes when written once more.
// A record is added too.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "plist/KeyedArchive.h"

namespace {

/// Takes the values inside from what is left; false once that is used up. A few bytes may unfold to millions.
bool fits(const QVariant& value, int& left)
{
    if (--left < 0)
        return false;
    if (value.typeId() == QMetaType::QVariantList)
        for (const QVariant& item : value.toList())
            if (!fits(item, left))
                return false;
    if (value.typeId() == QMetaType::QVariantMap)
        for (const QVariant& entry : value.toMap())
            if (!fits(entry, left))
                return false;
    return true;
}

bool isMuch(const QVariantList& records)
{
    int most = 20'000;
    return !fits(records, most);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const quindle::ArchivedRecords read = quindle::recordsFromKeyedArchive(bytes);
    if (!read.fault.isEmpty() && !read.records.isEmpty())
        std::abort();
    if (!read.fault.isEmpty() || isMuch(read.records))
        return 0;
    const QByteArray written = quindle::keyedArchive(read.records);
    const quindle::ArchivedRecords again = quindle::recordsFromKeyedArchive(written);
    if (!again.fault.isEmpty() || again.records.size() != read.records.size() ||
        quindle::keyedArchive(again.records) != written)
        std::abort();
    // With a record more, whether the archive is continued or written anew.
    const quindle::ArchivedRecords longer =
        quindle::recordsFromKeyedArchive(quindle::keyedArchiveWith(bytes, {}));
    if (!longer.fault.isEmpty() || quindle::keyedArchive(longer.records) !=
                                       quindle::keyedArchive(read.records + QVariantList{QVariantMap()}))
        std::abort();
    return 0;
}
