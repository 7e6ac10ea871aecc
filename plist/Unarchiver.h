#pragma once

#include <deque>
#include <map>
#include <optional>
#include <vector>

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "plist/KeyedArchive.h"
#include "plist/PropertyListGraph.h"
#include "plist/PropertyListLimits.h"

namespace quindle {

/// Reads the objects of one keyed archive, each of them once. Where the archive is damaged the reading stops
/// with a fault. Used for one archive and thrown away.
class Unarchiver
{
public:
    /// With `kept`, dictionaries come without their other entries, which are checked all the same.
    explicit Unarchiver(const PropertyListGraph& graph, std::optional<QStringList> kept = std::nullopt);

    /// False, with `fault` set, when the root is not an array of dictionaries with text keys.
    bool readRecords(QVariantList& records, const ReadingProgress& progress = {});

    const QString& fault() const { return m_fault; }

private:
    using Element = PropertyListGraph::Element;
    using Kind = PropertyListGraph::Kind;
    using References = std::vector<quint64>;

    struct Object
    {
        QVariant value;
        Extent extent;
        bool hasNumberKeys = false; ///< of a dictionary
    };

    struct Key
    {
        QString text;
        quint64 index = 0;       ///< of its value
        bool isRepeated = false; ///< the one before it is equal
        bool isKept = true;
    };

    /// Keys of a dictionary in the order in which a map holds them, of equal ones the last one last. Records
    /// have the same keys, so these are sorted once and the maps are filled from front to end.
    struct KeyList
    {
        std::vector<Key> sorted;
        quint64 weight = 0;
        bool hasNumbers = false;
    };

    bool findRoot(Element& root);
    bool object(quint64 reference, int level, Object& object);
    bool read(const Element& element, int level, Object& object);
    bool readInstance(const Element& element, int level, Object& object);
    bool readContainer(const Element& element, ArchivedClass archived, int level, Object& object);
    bool readArray(const Element& element, int level, Object& object);
    bool readDictionary(const Element& element, int level, Object& object);
    const KeyList* keysOf(const Element& dictionary, int level);
    const KeyList* keyList(const References& references, int level);
    bool readKey(quint64 reference, int level, KeyList& list);
    bool readText(const Element& element, Object& object);
    bool readData(const Element& element, Object& object);
    bool readDate(const Element& element, Object& object);
    bool readNumber(const Element& element, Object& object);

    ArchivedClass classOf(const Element& instance);
    ArchivedClass readClass(const Element& description);
    Element find(const Element& dictionary, const char* key) const;
    Element resolved(const Element& element) const;
    Element archived(quint64 reference) const;
    std::optional<References> references(const Element& element, const char* list, const char* numbered);
    std::optional<References> listedReferences(const Element& list);
    std::optional<References> numberedReferences(const Element& element, const char* prefix);

    bool spend(quint64 values);
    bool spendContent(qsizetype count, Object& object);
    bool put(const Object& part, Extent& whole);
    bool fail(const char* reason);

    const PropertyListGraph& m_graph;
    PropertyListLimits m_limits;
    std::optional<QStringList> m_kept; ///< keys
    Element m_objects;
    std::vector<quint32> m_positions; ///< in m_read, by reference; or one of the two marks
    std::deque<Object> m_read;        ///< all but plain numbers, which are as cheap to read again
    std::map<References, KeyList> m_keyLists;
    QHash<quint64, const KeyList*> m_keysAt; ///< by where they lie in the file
    QHash<quint64, ArchivedClass> m_classes; ///< by reference
    QString m_fault;
};

} // namespace quindle
