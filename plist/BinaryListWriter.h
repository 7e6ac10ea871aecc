#pragma once

#include <utility>
#include <vector>

#include <QByteArray>
#include <QHash>
#include <QString>

#include "plist/PropertyListGraph.h"

namespace quindle {

/// Writes a property list in the binary encoding, from the leaves up: a container names nodes that were added
/// before it. Equal texts and equal numbers are one node.
class BinaryListWriter
{
public:
    using Node = quint32;
    using Entries = std::vector<std::pair<Node, Node>>;

    /// Starts with the first nodes of a list instead of none. False, and nothing is usable, unless each of
    /// them lies behind the one before and names none but earlier ones, as this class writes them.
    bool resume(const PropertyListGraph& graph, Node count);

    Node addBoolean(bool value);
    Node addInteger(qint64 value);
    Node addReal(double value);
    Node addData(const QByteArray& bytes);
    Node addText(const QString& text);
    Node addReference(quint32 number); ///< a UID, which refers to an object of a keyed archive
    Node addArray(const std::vector<Node>& items);
    Node addDictionary(const Entries& entries);

    /// The list whose root is that node. Nothing can be added afterwards.
    QByteArray finish(Node root);

private:
    void know(const QVariant& value, Node node);
    Node begin();
    char* grow(qsizetype size);
    void put(quint64 number, int width);
    void putCount(int marker, qsizetype count);
    void putNumber(int marker, quint64 number);

    QByteArray m_bytes = QByteArrayLiteral("bplist00");
    std::vector<quint64> m_offsets;
    QHash<QString, Node> m_texts;
    QHash<qint64, Node> m_integers;
    QHash<quint64, Node> m_reals; ///< by their bits
    QHash<bool, Node> m_booleans;
};

} // namespace quindle
