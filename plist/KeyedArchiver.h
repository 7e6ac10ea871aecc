#pragma once

#include <map>
#include <vector>

#include <QHash>
#include <QVariant>

#include "plist/BinaryListWriter.h"

namespace quindle {

/// Writes one keyed archive as the platform's encoder does. Used for one archive and thrown away. Equal
/// texts, numbers and lists of keys are written once: the records of a history differ in a few numbers only.
class KeyedArchiver
{
public:
    QByteArray archive(const QVariantList& records);

private:
    using Node = BinaryListWriter::Node;
    using Reference = quint32; ///< the index of an archived object
    using Nodes = std::vector<Node>;

    Reference keep(Node node);
    Reference keepOnce(Node node);
    Reference keepValue(const QVariant& value);
    Reference keepText(const QString& text);
    Reference keepDate(const QDateTime& date);
    Reference keepList(const QVariantList& list);
    Reference keepMap(const QVariantMap& map);
    Reference classNamed(const char* name);

    Node instance(const char* className, BinaryListWriter::Entries entries);
    Node text(const char* latin1) { return m_list.addText(QString::fromLatin1(latin1)); }
    Node referenceTo(Reference object) const { return m_references[object]; }
    Nodes referencesTo(const QVariantList& list);

    BinaryListWriter m_list;
    Nodes m_objects;                  ///< by reference
    Nodes m_references;               ///< to each of them
    QHash<Node, Reference> m_kept;    ///< texts and numbers
    std::map<Nodes, Node> m_keyLists; ///< by the references in them
    QHash<QString, Reference> m_classes;
};

} // namespace quindle
