#include "history/KeyedArchive.h"

#include <memory>

#include "history/BinaryPropertyListGraph.h"
#include "history/Unarchiver.h"
#include "history/XmlPropertyListGraph.h"

namespace quindle {

namespace {

std::unique_ptr<PropertyListGraph> graphOf(const QByteArray& bytes)
{
    if (BinaryPropertyListGraph::isBinary(bytes))
        return std::make_unique<BinaryPropertyListGraph>(bytes);
    return std::make_unique<XmlPropertyListGraph>(bytes);
}

} // namespace

ArchivedRecords recordsFromKeyedArchive(const QByteArray& bytes)
{
    const std::unique_ptr<PropertyListGraph> graph = graphOf(bytes);
    Unarchiver unarchiver(*graph, static_cast<quint64>(bytes.size()));
    ArchivedRecords result;
    if (!unarchiver.readRecords(result.records))
        result = {{}, unarchiver.fault()};
    return result;
}

} // namespace quindle
