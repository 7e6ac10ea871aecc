#pragma once

#include <deque>
#include <optional>
#include <vector>

#include <QHash>
#include <QString>
#include <QVariant>

#include "history/ArchivedClass.h"
#include "history/PropertyListGraph.h"

namespace quindle {

/// Reads the objects of one keyed archive, each of them once. Where the archive is damaged the reading stops
/// with a fault. Used for one archive and thrown away.
class Unarchiver
{
public:
    /// `size`: of the archive in bytes, which bounds what a hostile one can make this take.
    Unarchiver(const PropertyListGraph& graph, quint64 size);

    /// False, with `fault` told, when the root is no array of dictionaries with text keys.
    bool readRecords(QVariantList& records);

    const QString& fault() const { return m_fault; }

private:
    using Node = PropertyListGraph::Node;
    using Kind = PropertyListGraph::Kind;
    using References = std::vector<quint64>;

    struct Object
    {
        QVariant value;
        quint64 weight = 1;         ///< values inside, shared ones as often as they appear
        bool hasNumberKeys = false; ///< of a dictionary
    };

    bool findRoot(Node& root);
    const Object* object(quint64 reference, int depth);
    bool read(Node node, int depth, Object& object);
    bool readInstance(Node node, int depth, Object& object);
    bool readArray(Node node, int depth, Object& object);
    bool readDictionary(Node node, int depth, Object& object);
    bool readText(Node node, Object& object);
    bool readData(Node node, Object& object);
    bool readDate(Node node, Object& object);
    bool readNumber(Node node, Object& object);
    bool insertKey(const Object& key, const Object& value, QVariantMap& map, Object& object);

    ArchivedClass classOf(Node node);
    ArchivedClass readClass(Node description);
    Node find(Node dictionary, const char* key) const;
    Node resolved(Node node) const;
    std::optional<References> references(Node node, const char* list, const char* numbered);
    std::optional<References> listedReferences(Node list);
    std::optional<References> numberedReferences(Node node, const char* prefix);

    bool spend(quint64 values);
    bool add(const Object& part, Object& whole);
    bool fail(const char* reason);

    const PropertyListGraph& m_graph;
    quint64 m_left; ///< values that may still be read
    quint64 m_unfoldedAllowed;
    Node m_objects = PropertyListGraph::noNode;
    std::vector<quint32> m_positions; ///< in m_read, by reference; or one of the two marks
    std::deque<Object> m_read;
    QHash<quint64, ArchivedClass> m_classes; ///< by reference
    QString m_fault;
};

} // namespace quindle
