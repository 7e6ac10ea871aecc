#include "history/BinaryPropertyListGraph.h"

#include <bit>
#include <utility>

#include <QtEndian>

#include "history/ArchiveDate.h"

namespace quindle {

namespace {

constexpr quint64 trailerSize = 32;

enum Type : quint8 {
    SingleType = 0x0,
    IntegerType = 0x1,
    RealType = 0x2,
    DateType = 0x3,
    DataType = 0x4,
    AsciiType = 0x5,
    Utf16Type = 0x6,
    ReferenceType = 0x8,
    ArrayType = 0xa,
    DictionaryType = 0xd,
};

PropertyListGraph::Kind singleKind(quint8 detail)
{
    using Kind = PropertyListGraph::Kind;
    if (detail == 0x0)
        return Kind::Null;
    return detail == 0x8 || detail == 0x9 ? Kind::Boolean : Kind::Invalid;
}

} // namespace

BinaryPropertyListGraph::BinaryPropertyListGraph(QByteArray bytes)
    : m_bytes(std::move(bytes))
    , m_size(static_cast<quint64>(m_bytes.size()))
{
    if (!isBinary(m_bytes) || m_size < trailerSize)
        return;
    const quint64 trailer = m_size - trailerSize;
    m_offsetWidth = *number(trailer + 6, 1);
    m_referenceWidth = *number(trailer + 7, 1);
    m_nodeCount = *number(trailer + 8, 8);
    const Node top = *number(trailer + 16, 8);
    m_offsetTable = *number(trailer + 24, 8);
    const bool areWidthsRight =
        m_offsetWidth >= 1 && m_offsetWidth <= 8 && m_referenceWidth >= 1 && m_referenceWidth <= 8;
    const bool isTableInside = areWidthsRight && m_offsetTable <= trailer &&
                               m_nodeCount <= (trailer - m_offsetTable) / m_offsetWidth;
    if (isTableInside && top < m_nodeCount)
        m_root = top;
}

bool BinaryPropertyListGraph::isBinary(const QByteArray& bytes)
{
    return bytes.startsWith("bplist0");
}

/// A big-endian number of 1 to 8 bytes.
std::optional<quint64> BinaryPropertyListGraph::number(quint64 start, quint64 width) const
{
    if (start > m_size || width > m_size - start)
        return std::nullopt;
    quint64 value = 0;
    const auto* bytes = reinterpret_cast<const uchar*>(m_bytes.constData()) + start;
    for (quint64 index = 0; index < width; ++index)
        value = (value << 8) | bytes[index];
    return value;
}

std::optional<BinaryPropertyListGraph::Content> BinaryPropertyListGraph::content(Node node) const
{
    if (m_root == noNode || node >= m_nodeCount)
        return std::nullopt;
    const auto offset = number(m_offsetTable + node * m_offsetWidth, m_offsetWidth);
    const auto marker = offset ? number(*offset, 1) : std::nullopt;
    if (!marker)
        return std::nullopt;
    Content found{.type = static_cast<quint8>(*marker >> 4),
                  .detail = static_cast<quint8>(*marker & 0x0f),
                  .start = *offset + 1};
    if (!readCount(found) || found.start > m_size || found.count > m_size ||
        byteLength(found) > m_size - found.start)
        return std::nullopt;
    return found;
}

/// A count of 15 and more stands behind the marker, as an integer of its own.
bool BinaryPropertyListGraph::readCount(Content& found) const
{
    found.count = found.detail;
    const bool hasCount = found.type >= DataType && found.type != ReferenceType;
    if (!hasCount || found.detail != 0xf)
        return true;
    const auto marker = number(found.start, 1);
    if (!marker || (*marker & 0xf0) != 0x10 || (*marker & 0x0f) > 3)
        return false;
    const quint64 width = quint64{1} << (*marker & 0x0f);
    const auto count = number(found.start + 1, width);
    if (!count)
        return false;
    found.start += 1 + width;
    found.count = *count;
    return true;
}

/// `count` is at most the file's size here, so that nothing overflows.
quint64 BinaryPropertyListGraph::byteLength(const Content& found) const
{
    switch (found.type) {
    case IntegerType:
    case RealType:
        return quint64{1} << found.detail;
    case DateType:
        return sizeof(double);
    case DataType:
    case AsciiType:
        return found.count;
    case Utf16Type:
        return found.count * 2;
    case ReferenceType:
        return found.count + 1;
    case ArrayType:
        return found.count * m_referenceWidth;
    case DictionaryType:
        return found.count * m_referenceWidth * 2;
    default:
        return 0;
    }
}

PropertyListGraph::Kind BinaryPropertyListGraph::kindOf(const Content& found)
{
    switch (found.type) {
    case SingleType:
        return singleKind(found.detail);
    case IntegerType:
        return found.detail <= 4 ? Kind::Integer : Kind::Invalid;
    case RealType:
        return found.detail == 2 || found.detail == 3 ? Kind::Real : Kind::Invalid;
    case DateType:
        return found.detail == 3 ? Kind::Date : Kind::Invalid;
    case DataType:
        return Kind::Data;
    case AsciiType:
    case Utf16Type:
        return Kind::Text;
    case ReferenceType:
        return found.detail <= 7 ? Kind::Reference : Kind::Invalid;
    case ArrayType:
        return Kind::Array;
    case DictionaryType:
        return Kind::Dictionary;
    default:
        return Kind::Invalid;
    }
}

PropertyListGraph::Kind BinaryPropertyListGraph::kind(Node node) const
{
    const auto found = content(node);
    return found ? kindOf(*found) : Kind::Invalid;
}

QVariant BinaryPropertyListGraph::value(Node node) const
{
    const auto found = content(node);
    if (!found)
        return {};
    const char* bytes = m_bytes.constData() + found->start;
    switch (kindOf(*found)) {
    case Kind::Boolean:
        return found->detail == 0x9;
    case Kind::Integer:
        return integer(*found);
    case Kind::Real:
        return real(*found);
    case Kind::Date:
        return dateFromArchivedSeconds(std::bit_cast<double>(qFromBigEndian<quint64>(bytes)));
    case Kind::Data:
        return QByteArray(bytes, static_cast<qsizetype>(found->count));
    case Kind::Text:
        return text(*found);
    default:
        return {};
    }
}

/// Of the 16 bytes of the longest integers the lower half counts: a larger number has no place in 64 bits.
QVariant BinaryPropertyListGraph::integer(const Content& found) const
{
    const quint64 width = quint64{1} << found.detail;
    const quint64 kept = width > 8 ? 8 : width;
    return QVariant::fromValue(static_cast<qint64>(*number(found.start + width - kept, kept)));
}

QVariant BinaryPropertyListGraph::real(const Content& found) const
{
    const quint64 bits = *number(found.start, quint64{1} << found.detail);
    if (found.detail == 2)
        return static_cast<double>(std::bit_cast<float>(static_cast<quint32>(bits)));
    return std::bit_cast<double>(bits);
}

QVariant BinaryPropertyListGraph::text(const Content& found) const
{
    const char* bytes = m_bytes.constData() + found.start;
    const auto length = static_cast<qsizetype>(found.count);
    if (found.type == AsciiType)
        return QString::fromLatin1(bytes, length);
    QString text(length, Qt::Uninitialized);
    qFromBigEndian<char16_t>(bytes, length, text.data());
    return text;
}

quint64 BinaryPropertyListGraph::reference(Node node) const
{
    const auto found = content(node);
    const bool isReference = found && kindOf(*found) == Kind::Reference;
    return isReference ? *number(found->start, found->count + 1) : noNode;
}

bool BinaryPropertyListGraph::addReferences(Node array, std::vector<quint64>& references) const
{
    const auto found = content(array);
    if (!found || found->type != ArrayType)
        return false;
    for (quint64 index = 0; index < found->count; ++index) {
        const auto item = content(nodeAt(found->start, index));
        if (!item || kindOf(*item) != Kind::Reference)
            return false;
        references.push_back(*number(item->start, item->count + 1));
    }
    return true;
}

quint64 BinaryPropertyListGraph::count(Node node) const
{
    const auto found = content(node);
    const bool isContainer = found && (found->type == ArrayType || found->type == DictionaryType);
    return isContainer ? found->count : 0;
}

PropertyListGraph::Node BinaryPropertyListGraph::nodeAt(quint64 start, quint64 index) const
{
    return number(start + index * m_referenceWidth, m_referenceWidth).value_or(noNode);
}

PropertyListGraph::Node BinaryPropertyListGraph::item(Node array, quint64 index) const
{
    const auto found = content(array);
    const bool isThere = found && found->type == ArrayType && index < found->count;
    return isThere ? nodeAt(found->start, index) : noNode;
}

PropertyListGraph::Node BinaryPropertyListGraph::key(Node dictionary, quint64 index) const
{
    const auto found = content(dictionary);
    const bool isThere = found && found->type == DictionaryType && index < found->count;
    return isThere ? nodeAt(found->start, index) : noNode;
}

PropertyListGraph::Node BinaryPropertyListGraph::entry(Node dictionary, quint64 index) const
{
    const auto found = content(dictionary);
    const bool isThere = found && found->type == DictionaryType && index < found->count;
    return isThere ? nodeAt(found->start, found->count + index) : noNode;
}

bool BinaryPropertyListGraph::isText(Node node, QLatin1StringView wanted) const
{
    const auto found = content(node);
    if (!found || found->count != static_cast<quint64>(wanted.size()))
        return false;
    if (found->type == Utf16Type)
        return text(*found).toString() == wanted;
    return found->type == AsciiType &&
           QLatin1StringView(m_bytes.constData() + found->start, wanted.size()) == wanted;
}

} // namespace quindle
