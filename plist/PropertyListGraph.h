#pragma once

#include <algorithm>

#include <QByteArray>
#include <QLatin1StringView>
#include <QVariant>
#include <QtEndian>

namespace quindle {

/// A property list as the binary encoding stores it: numbered nodes that refer to each other, each read only
/// when asked for. Unlike a tree of values it does not copy what a file refers to more than once. An XML
/// list is rewritten in the binary encoding first, so that there is one reader for both.
///
/// The graph may have any form: nodes may contain themselves, and share others without end.
class PropertyListGraph
{
public:
    using Node = quint64;

    enum class Kind : quint8 {
        Missing, ///< nothing was looked up
        Invalid, ///< broken in the file, or beyond its end
        Null,
        Boolean,
        Integer,
        Real,
        Date,
        Data,
        Text,
        Reference, ///< a UID, which refers to an object of a keyed archive
        Array,     ///< or a set
        Dictionary,
    };

    /// What is at a node. Looked up once, it answers every other question about the node.
    struct Element
    {
        Kind kind = Kind::Missing;
        quint8 marker = 0; ///< the byte that it begins with
        quint64 start = 0; ///< of what follows the marker and the count
        quint64 count = 0; ///< of items, entries, characters or bytes
    };

    /// No node of any list.
    static constexpr Node noNode = ~Node{0};

    /// XML or binary. The root is Invalid when `bytes` are not a property list of either encoding.
    explicit PropertyListGraph(const QByteArray& bytes);

    /// Of the binary encoding in bytes: at least one for each node, reference and character.
    quint64 size() const { return m_size; }

    Node root() const { return m_root; }

    Element element(Node node) const
    {
        if (node >= m_count)
            return {.kind = Kind::Invalid};
        return elementAt(offsetOf(node));
    }

    /// The value of anything from Boolean to Text, of the types of plist/PropertyList.h; invalid for every
    /// other kind and for a date that is not a number.
    QVariant value(const Element& element) const;

    /// The number that a reference holds; `noNode` for every other kind.
    quint64 reference(const Element& element) const;

    /// The number that the reference at a node holds; `noNode` for every other kind. The same as asking the
    /// node's element, for the lists of references that most of an archive is.
    quint64 referenceAt(Node node) const
    {
        // The upper half of its marker; the lower one is the width less one.
        constexpr quint64 referenceMark = 0x8;
        const quint64 offset = node < m_count ? offsetOf(node) : m_size;
        if (offset >= m_size)
            return noNode;
        const quint64 marker = number(offset, 1);
        const quint64 width = (marker & 0x0f) + 1;
        if (marker >> 4 != referenceMark || width > m_size - offset - 1)
            return noNode;
        const quint64 kept = std::min(width, quint64{8});
        return number(offset + 1 + width - kept, kept);
    }

    /// An item of an array; `noNode` when there is none.
    Node item(const Element& array, quint64 index) const;

    /// The key and the value of a dictionary's entry; `noNode` when there is none.
    Node key(const Element& dictionary, quint64 index) const;
    Node entry(const Element& dictionary, quint64 index) const;

    bool isText(const Element& element, QLatin1StringView text) const;

    // How the list is laid out, for a writer that continues it.

    /// The binary encoding.
    const QByteArray& bytes() const { return m_bytes; }

    /// In bytes, of the numbers by which containers name nodes.
    quint64 referenceWidth() const { return m_referenceWidth; }

    /// Where a node begins, and where one that is not Invalid ends; beyond the list for one that there is
    /// not.
    quint64 begin(Node node) const { return node < m_count ? offsetOf(node) : m_size; }
    quint64 end(const Element& element) const { return element.start + byteLength(element); }

private:
    void readTrailer();
    Element elementAt(quint64 offset) const;
    bool readCount(Element& found) const;
    quint64 byteLength(const Element& found) const;
    const char* content(const Element& element) const;
    quint64 integer(const Element& element) const;
    QString text(const Element& element) const;

    /// Of a node that the list has.
    quint64 offsetOf(Node node) const { return number(m_offsetTable + node * m_offsetWidth, m_offsetWidth); }

    /// The reference at `index` after the start of a container.
    Node nodeAt(const Element& container, quint64 index) const
    {
        return number(container.start + index * m_referenceWidth, m_referenceWidth);
    }

    /// A big-endian number of 1 to 8 bytes inside the list.
    quint64 number(quint64 start, quint64 width) const
    {
        const auto* bytes = reinterpret_cast<const uchar*>(m_bytes.constData()) + start;
        // The widths of nearly all numbers; reading them byte by byte took a tenth of an archive's time.
        if (width == 4)
            return qFromBigEndian<quint32>(bytes);
        if (width == 2)
            return qFromBigEndian<quint16>(bytes);
        quint64 value = 0;
        for (quint64 index = 0; index < width; ++index)
            value = value << 8 | bytes[index];
        return value;
    }

    QByteArray m_bytes;
    quint64 m_size;
    quint64 m_offsetWidth = 0;
    quint64 m_referenceWidth = 0;
    quint64 m_count = 0; ///< of nodes; 0 when the bytes are not a list
    Node m_root = noNode;
    quint64 m_offsetTable = 0;
};

} // namespace quindle
