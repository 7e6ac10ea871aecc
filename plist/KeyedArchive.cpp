#include "plist/KeyedArchive.h"

#include "plist/Unarchiver.h"

namespace quindle {

ArchivedRecords recordsFromKeyedArchive(const QByteArray& bytes)
{
    const PropertyListGraph graph(bytes);
    Unarchiver unarchiver(graph);
    ArchivedRecords result;
    if (!unarchiver.readRecords(result.records))
        result = {{}, unarchiver.fault()};
    return result;
}

} // namespace quindle
