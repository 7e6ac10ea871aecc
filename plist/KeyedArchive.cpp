#include "plist/KeyedArchive.h"

#include <algorithm>
#include <array>

#include "plist/KeyedArchiver.h"
#include "plist/Unarchiver.h"

namespace quindle {

namespace {

struct NamedClass
{
    const char* name;
    ArchivedClass archived;
};

/// With the mutable ones: an encoder writes the class that the object had at the moment.
constexpr std::array namedClasses{
    NamedClass{"NSArray", ArchivedClass::Array},
    NamedClass{"NSMutableArray", ArchivedClass::Array},
    NamedClass{"NSSet", ArchivedClass::Set},
    NamedClass{"NSMutableSet", ArchivedClass::Set},
    NamedClass{"NSDictionary", ArchivedClass::Dictionary},
    NamedClass{"NSMutableDictionary", ArchivedClass::Dictionary},
    NamedClass{"NSString", ArchivedClass::Text},
    NamedClass{"NSMutableString", ArchivedClass::Text},
    NamedClass{"NSData", ArchivedClass::Data},
    NamedClass{"NSMutableData", ArchivedClass::Data},
    NamedClass{"NSDate", ArchivedClass::Date},
    NamedClass{"NSNumber", ArchivedClass::Number},
    NamedClass{"NSNull", ArchivedClass::Null},
};

ArchivedRecords readBy(Unarchiver unarchiver, const ReadingProgress& progress)
{
    ArchivedRecords result;
    if (!unarchiver.readRecords(result.records, progress))
        // Never both: what was read before a fault is not used.
        result = {{}, unarchiver.fault()};
    return result;
}

} // namespace

ArchivedRecords recordsFromKeyedArchive(const QByteArray& bytes, const ReadingProgress& progress)
{
    const PropertyListGraph graph(bytes);
    return readBy(Unarchiver(graph), progress);
}

ArchivedRecords outlineOfKeyedArchive(const QByteArray& bytes, const QStringList& keys)
{
    const PropertyListGraph graph(bytes);
    return readBy(Unarchiver(graph, keys), {});
}

QByteArray keyedArchive(const QVariantList& records)
{
    return KeyedArchiver().archive(records);
}

QByteArray keyedArchiveWith(const QByteArray& archive, const QVariantMap& record)
{
    KeyedArchiver archiver;
    if (archiver.resume(PropertyListGraph(archive)))
        return archiver.archive({record});
    return keyedArchive(recordsFromKeyedArchive(archive).records + QVariantList{record});
}

ArchivedClass archivedClass(const PropertyListGraph& graph, const PropertyListGraph::Element& name)
{
    // A name only chooses a reader: whatever an archive says, no object of another class is made.
    const auto* found =
        std::find_if(namedClasses.begin(), namedClasses.end(), [&](const NamedClass& candidate) {
            return graph.isText(name, QLatin1StringView(candidate.name));
        });
    return found == namedClasses.end() ? ArchivedClass::Unknown : found->archived;
}

} // namespace quindle
