#pragma once

#include <optional>

#include <QByteArray>

#include "history/PropertyListGraph.h"

namespace quindle {

/// The binary encoding. Nothing is copied out of the bytes before it is asked for.
class BinaryPropertyListGraph : public PropertyListGraph
{
public:
    explicit BinaryPropertyListGraph(QByteArray bytes);

    static bool isBinary(const QByteArray& bytes);

    Node root() const override { return m_root; }
    Kind kind(Node node) const override;
    QVariant value(Node node) const override;
    quint64 reference(Node node) const override;
    quint64 count(Node node) const override;
    Node item(Node array, quint64 index) const override;
    bool addReferences(Node array, std::vector<quint64>& references) const override;
    Node key(Node dictionary, quint64 index) const override;
    Node entry(Node dictionary, quint64 index) const override;
    bool isText(Node node, QLatin1StringView text) const override;

private:
    /// Where a node's content lies, checked against the end of the file.
    struct Content
    {
        quint8 type = 0;   ///< the marker's upper half
        quint8 detail = 0; ///< and its lower half
        quint64 start = 0;
        quint64 count = 0; ///< of bytes, characters, items or entries
    };

    static Kind kindOf(const Content& found);
    std::optional<quint64> number(quint64 start, quint64 width) const;
    std::optional<Content> content(Node node) const;
    bool readCount(Content& found) const;
    quint64 byteLength(const Content& found) const;
    Node nodeAt(quint64 start, quint64 index) const;
    QVariant integer(const Content& found) const;
    QVariant real(const Content& found) const;
    QVariant text(const Content& found) const;

    QByteArray m_bytes;
    quint64 m_size = 0;
    quint64 m_offsetWidth = 0;
    quint64 m_referenceWidth = 0;
    quint64 m_nodeCount = 0;
    quint64 m_offsetTable = 0;
    Node m_root = noNode;
};

} // namespace quindle
