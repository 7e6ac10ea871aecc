#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <QVariant>

#include "plist/BinaryListWriter.h"

namespace quindle {

/// Writes one keyed archive as the platform's encoder does. Used for one archive and thrown away. Equal
/// values are written once: the records of a history differ in a few numbers only, and an archive of a few
/// bytes that unfolds to gigabytes does not fill the disk when it is written again.
class KeyedArchiver
{
public:
    /// Starts with the objects of an archive that was written by this class, which `archive` then adds to:
    /// the bytes are those of all records in one archive. False, and this object is of no further use, for an
    /// archive that is laid out in any other way. It has to be whole.
    bool resume(const PropertyListGraph& graph);

    QByteArray archive(const QVariantList& records);

private:
    using Element = PropertyListGraph::Element;
    using Kind = PropertyListGraph::Kind;
    using Node = BinaryListWriter::Node;
    using Reference = quint32; ///< the index of an archived object
    using Nodes = std::vector<Node>;

    struct KeyList
    {
        QStringList keys;
        Node node = 0;
    };

    struct KnownText
    {
        qsizetype length = 0;
        Reference reference = 0;
    };

    bool resumeObjects(const PropertyListGraph& graph, const Element& objects, Node end);
    void knowObject(const PropertyListGraph& graph, Reference reference);
    void knowClass(const PropertyListGraph& graph, const Element& description, Reference reference);
    void knowContainer(const PropertyListGraph& graph, const Element& instance, Reference reference);
    void knowKeys(const PropertyListGraph& graph, Node list);

    Reference keep(Node node);
    Reference keepOnce(Node node);
    Reference keepValue(const QVariant& value);
    Reference keepText(const QString& text);
    Reference keepDate(const QDateTime& date);
    Reference keepList(const QVariantList& list);
    Reference keepMap(const QVariantMap& map);
    Reference keepContainer(const char* className, std::optional<Node> keys, const Nodes& items);
    Reference classNamed(const char* literal);

    Node keyList(const QVariantMap& map);
    Node rememberKeys(const QStringList& keys, Node node);
    static QByteArray containerContents(std::optional<Node> keys, const Nodes& items);
    Node instance(const char* className, BinaryListWriter::Entries entries);
    Node name(const char* literal);
    Node referenceTo(Reference object) const { return m_references[object]; }
    Nodes referencesTo(const QVariantList& list);

    BinaryListWriter m_list;
    Nodes m_items;                    ///< of the root, in an archive that is continued
    Nodes m_objects;                  ///< by reference
    Nodes m_references;               ///< to each of them
    Nodes m_kept;                     ///< the references of texts and numbers, by node; 0 for others
    std::vector<KeyList> m_keyLists;  ///< few, since records have the same keys
    QHash<const char*, Node> m_names; ///< by literal, like the classes
    QHash<const char*, Reference> m_classes;
    QHash<QString, Reference> m_resumedClasses;  ///< by name
    QHash<QByteArray, Reference> m_containers;   ///< by the bytes of their items and list of keys
    QHash<const QChar*, KnownText> m_knownTexts; ///< by where they lie while the records live
};

} // namespace quindle
