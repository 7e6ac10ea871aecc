#include "plist/BinaryListWriter.h"

#include <algorithm>
#include <bit>
#include <limits>

#include <QtEndian>

namespace quindle {

namespace {

/// What nodes begin with; counts and widths are added.
struct Marker
{
    static constexpr int integer = 0x10;
    static constexpr int real = 0x23; // of eight bytes
    static constexpr int data = 0x40;
    static constexpr int ascii = 0x50;
    static constexpr int wideText = 0x60;
    static constexpr int reference = 0x80;
    static constexpr int array = 0xa0;
    static constexpr int dictionary = 0xd0;
};

// Always this wide: containers are written before it is known how many nodes there will be.
constexpr int nodeWidth = 4;
static_assert(sizeof(BinaryListWriter::Node) == nodeWidth);

bool hasOnlyAscii(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; });
}

void writeNumber(quint64 number, int width, char* room)
{
    for (int index = width; index > 0; --index, number >>= 8)
        room[index - 1] = static_cast<char>(number & 0xff);
}

/// Whether a container names only nodes before its own.
bool namesOnlyEarlier(const PropertyListGraph& graph, const PropertyListGraph::Element& element,
                      PropertyListGraph::Node node)
{
    bool isSo = true;
    const bool isDictionary = element.kind == PropertyListGraph::Kind::Dictionary;
    for (quint64 index = 0; index < element.count && isSo; ++index)
        isSo = isDictionary ? graph.key(element, index) < node && graph.entry(element, index) < node
                            : graph.item(element, index) < node;
    return isSo;
}

/// The power of two that says how many bytes a number takes.
int widthPower(quint64 number)
{
    if (number <= std::numeric_limits<quint8>::max())
        return 0;
    if (number <= std::numeric_limits<quint16>::max())
        return 1;
    return number <= std::numeric_limits<quint32>::max() ? 2 : 3;
}

} // namespace

bool BinaryListWriter::resume(const PropertyListGraph& graph, Node count)
{
    if (graph.referenceWidth() != nodeWidth)
        return false;
    auto end = static_cast<quint64>(m_bytes.size());
    m_offsets.reserve(count);
    for (Node node = 0; node < count; ++node) {
        const PropertyListGraph::Element element = graph.element(node);
        if (element.kind == PropertyListGraph::Kind::Invalid || graph.begin(node) != end)
            return false;
        if (element.kind == PropertyListGraph::Kind::Array ||
            element.kind == PropertyListGraph::Kind::Dictionary) {
            if (!namesOnlyEarlier(graph, element, node))
                return false;
        } else
            know(graph.value(element), node);
        m_offsets.push_back(end);
        end = graph.end(element);
    }
    m_bytes = graph.bytes().first(static_cast<qsizetype>(end));
    return true;
}

/// The first of equal nodes is the one that is used again.
void BinaryListWriter::know(const QVariant& value, Node node)
{
    const auto insert = [node](auto& known, const auto& key) {
        if (!known.contains(key))
            known.insert(key, node);
    };
    switch (value.typeId()) {
    case QMetaType::Bool:
        return insert(m_booleans, value.toBool());
    case QMetaType::LongLong:
        return insert(m_integers, value.toLongLong());
    case QMetaType::Double:
        return insert(m_reals, std::bit_cast<quint64>(value.toDouble()));
    case QMetaType::QString:
        return insert(m_texts, value.toString());
    default:
        return;
    }
}

BinaryListWriter::Node BinaryListWriter::addBoolean(bool value)
{
    const auto known = m_booleans.constFind(value);
    if (known != m_booleans.cend())
        return *known;
    const Node node = begin();
    m_bytes += value ? '\x09' : '\x08';
    return *m_booleans.insert(value, node);
}

BinaryListWriter::Node BinaryListWriter::addInteger(qint64 value)
{
    const auto known = m_integers.constFind(value);
    if (known != m_integers.cend())
        return *known;
    const Node node = begin();
    // Fewer than eight bytes are read as unsigned, so every negative number takes eight.
    putNumber(Marker::integer, static_cast<quint64>(value));
    return *m_integers.insert(value, node);
}

BinaryListWriter::Node BinaryListWriter::addReal(double value)
{
    const auto bits = std::bit_cast<quint64>(value);
    const auto known = m_reals.constFind(bits);
    if (known != m_reals.cend())
        return *known;
    const Node node = begin();
    put(Marker::real, 1);
    put(bits, 8);
    return *m_reals.insert(bits, node);
}

BinaryListWriter::Node BinaryListWriter::addData(const QByteArray& bytes)
{
    const Node node = begin();
    putCount(Marker::data, bytes.size());
    m_bytes += bytes;
    return node;
}

BinaryListWriter::Node BinaryListWriter::addText(const QString& text)
{
    const auto known = m_texts.constFind(text);
    if (known != m_texts.cend())
        return *known;
    const Node node = begin();
    const bool isNarrow = hasOnlyAscii(text);
    putCount(isNarrow ? Marker::ascii : Marker::wideText, text.size());
    if (isNarrow)
        m_bytes += text.toLatin1();
    else
        qToBigEndian<char16_t>(text.constData(), text.size(), grow(text.size() * 2));
    return *m_texts.insert(text, node);
}

BinaryListWriter::Node BinaryListWriter::addReference(quint32 number)
{
    const Node node = begin();
    // Unlike an integer's, its marker holds the number of bytes less one.
    const int width = 1 << widthPower(number);
    put(static_cast<quint64>(Marker::reference | (width - 1)), 1);
    put(number, width);
    return node;
}

BinaryListWriter::Node BinaryListWriter::addArray(const std::vector<Node>& items)
{
    const Node node = begin();
    const auto count = static_cast<qsizetype>(items.size());
    putCount(Marker::array, count);
    qToBigEndian<Node>(items.data(), count, grow(count * nodeWidth));
    return node;
}

BinaryListWriter::Node BinaryListWriter::addDictionary(const Entries& entries)
{
    const Node node = begin();
    const auto count = static_cast<qsizetype>(entries.size());
    putCount(Marker::dictionary, count);
    char* keys = grow(count * 2 * nodeWidth);
    char* values = keys + count * nodeWidth;
    for (const auto& [key, value] : entries) {
        qToBigEndian(key, keys);
        qToBigEndian(value, values);
        keys += nodeWidth;
        values += nodeWidth;
    }
    return node;
}

QByteArray BinaryListWriter::finish(Node root)
{
    const auto table = static_cast<quint64>(m_bytes.size());
    const int offsetWidth = 1 << widthPower(table);
    char* room = grow(static_cast<qsizetype>(m_offsets.size()) * offsetWidth);
    for (const quint64 offset : m_offsets) {
        writeNumber(offset, offsetWidth, room);
        room += offsetWidth;
    }
    m_bytes += QByteArray(6, '\0') + static_cast<char>(offsetWidth) + static_cast<char>(nodeWidth);
    put(m_offsets.size(), 8);
    put(root, 8);
    put(table, 8);
    return m_bytes;
}

BinaryListWriter::Node BinaryListWriter::begin()
{
    m_offsets.push_back(static_cast<quint64>(m_bytes.size()));
    return static_cast<Node>(m_offsets.size() - 1);
}

/// Room for that many bytes at the end. Numbers are written into it in one go: appended one by one they took
/// half of an archive's time.
char* BinaryListWriter::grow(qsizetype size)
{
    const qsizetype end = m_bytes.size();
    m_bytes.resize(end + size);
    return m_bytes.data() + end;
}

/// The last bytes of a number, the highest first.
void BinaryListWriter::put(quint64 number, int width)
{
    writeNumber(number, width, grow(width));
}

/// A count of 15 or more follows the marker, as an integer of its own.
void BinaryListWriter::putCount(int marker, qsizetype count)
{
    constexpr qsizetype isBehind = 0xf;
    put(static_cast<quint64>(marker) | static_cast<quint64>(std::min(count, isBehind)), 1);
    if (count >= isBehind)
        putNumber(Marker::integer, static_cast<quint64>(count));
}

void BinaryListWriter::putNumber(int marker, quint64 number)
{
    const int power = widthPower(number);
    put(static_cast<quint64>(marker | power), 1);
    put(number, 1 << power);
}

} // namespace quindle
