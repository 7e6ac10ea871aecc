#pragma once

#include <functional>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "plist/PropertyListGraph.h"

namespace quindle {

struct ArchivedRecords
{
    QVariantList records; ///< each a QVariantMap, in the archive's order; empty when there is a fault
    QString fault;        ///< why nothing is usable, in one line; empty when all is
};

/// Called with how much has been read, in percent, whenever the number changes.
using ReadingProgress = std::function<void(int percent)>;

/// The records in a keyed archive, binary or XML, whose root is an array of dictionaries with text keys.
/// Values come back as property-list values (see plist/PropertyList.h), dates in UTC, nulls as invalid ones;
/// a number that is a key of an inner dictionary becomes a text. With any damage, an unknown class, or an
/// element that is not such a dictionary there are no records. Time and memory grow with the size of the
/// bytes, whatever they say.
ArchivedRecords recordsFromKeyedArchive(const QByteArray& bytes, const ReadingProgress& progress = {});

/// The same, but dictionaries come with only those of their entries that have one of these keys. The fault is
/// the same too.
ArchivedRecords outlineOfKeyedArchive(const QByteArray& bytes, const QStringList& keys);

/// A binary keyed archive of `records`, each a QVariantMap, that the reader above and the platform's own
/// reader take. Property-list values come back as they are, dates to the millisecond; an invalid value or
/// date becomes a null.
QByteArray keyedArchive(const QVariantList& records);

/// An archive without fault with one more record at its end: the bytes that `keyedArchive` gives for all of
/// them, without reading the others if it wrote the archive itself.
QByteArray keyedArchiveWith(const QByteArray& archive, const QVariantMap& record);

/// The kinds of objects that archives of snapshot records hold.
enum class ArchivedClass { Unknown, Array, Set, Dictionary, Text, Data, Date, Number, Null };

/// The kind that a class of the platform is, by its name.
ArchivedClass archivedClass(const PropertyListGraph& graph, const PropertyListGraph::Element& name);

} // namespace quindle
