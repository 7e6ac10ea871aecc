#include "plist/PropertyListGraph.h"

#include <algorithm>
#include <array>
#include <bit>

#include <QtEndian>

#include "plist/PropertyListDate.h"
#include "plist/XmlTranscript.h"

namespace quindle {

namespace {

using Kind = PropertyListGraph::Kind;

// The lower halves of the markers of a boolean and of a real of four bytes.
constexpr quint8 trueDetail = 0x9;
constexpr quint8 floatDetail = 2;

constexpr quint8 detailOf(quint8 marker)
{
    return marker & 0x0f;
}

constexpr bool isWide(quint8 marker)
{
    return marker >> 4 == 0x6;
}

constexpr Kind kindOf(quint8 marker)
{
    const quint8 detail = detailOf(marker);
    switch (marker >> 4) {
    case 0x0:
        return detail == 0                             ? Kind::Null
               : detail == 0x8 || detail == trueDetail ? Kind::Boolean
                                                       : Kind::Invalid;
    case 0x1:
        return detail <= 4 ? Kind::Integer : Kind::Invalid; // 2 to the power of it are the bytes, 16 at most
    case 0x2:
        return detail == floatDetail || detail == 3 ? Kind::Real : Kind::Invalid;
    case 0x3:
        return detail == 3 ? Kind::Date : Kind::Invalid;
    case 0x4:
        return Kind::Data;
    case 0x5:
    case 0x6:
        return Kind::Text;
    case 0x8:
        return Kind::Reference;
    case 0xa:
    case 0xb: // an ordered set
    case 0xc: // a set
        return Kind::Array;
    case 0xd:
        return Kind::Dictionary;
    default:
        return Kind::Invalid;
    }
}

/// Looked up for every node that is read, which is sooner done than decided.
constexpr std::array<Kind, 256> kinds = [] {
    std::array<Kind, 256> all{};
    for (std::size_t marker = 0; marker < all.size(); ++marker)
        all[marker] = kindOf(static_cast<quint8>(marker));
    return all;
}();

bool hasCount(Kind kind)
{
    return kind == Kind::Data || kind == Kind::Text || kind == Kind::Array || kind == Kind::Dictionary;
}

} // namespace

PropertyListGraph::PropertyListGraph(const QByteArray& bytes)
    : m_bytes(bytes.startsWith("bplist0") ? bytes : binaryFromXml(bytes))
    , m_size(static_cast<quint64>(m_bytes.size()))
{
    readTrailer();
}

void PropertyListGraph::readTrailer()
{
    constexpr quint64 headerSize = 8;
    constexpr quint64 trailerSize = 32;
    if (m_size < headerSize + trailerSize)
        return;
    // Six bytes that are not used, two widths of a byte each, and three numbers of eight.
    const quint64 trailer = m_size - trailerSize;
    m_offsetWidth = number(trailer + 6, 1);
    m_referenceWidth = number(trailer + 7, 1);
    const quint64 count = number(trailer + 8, 8);
    m_root = number(trailer + 16, 8);
    m_offsetTable = number(trailer + 24, 8);
    const auto isWidth = [](quint64 width) { return width >= 1 && width <= 8; };
    // Compared by division, so that no number in the trailer can overflow the sum.
    const bool isTableInside = isWidth(m_offsetWidth) && isWidth(m_referenceWidth) &&
                               m_offsetTable <= trailer && count <= (trailer - m_offsetTable) / m_offsetWidth;
    m_count = isTableInside ? count : 0;
}

PropertyListGraph::Element PropertyListGraph::elementAt(quint64 offset) const
{
    constexpr Element invalid{.kind = Kind::Invalid};
    if (offset >= m_size)
        return invalid;
    const auto marker = static_cast<quint8>(m_bytes[static_cast<qsizetype>(offset)]);
    Element found{.kind = kinds[marker], .marker = marker, .start = offset + 1, .count = detailOf(marker)};
    // Checked once here, so that the readers below need no bounds of their own. In this order: only a count
    // that is at most the list's size cannot overflow the length.
    const bool isInside =
        readCount(found) && found.count <= m_size && byteLength(found) <= m_size - found.start;
    return isInside ? found : invalid;
}

/// A count of 15 or more follows the marker, as an integer of its own.
bool PropertyListGraph::readCount(Element& found) const
{
    if (!hasCount(found.kind) || found.count != 0xf)
        return true;
    const quint64 marker = found.start < m_size ? number(found.start, 1) : 0;
    const quint64 width = quint64{1} << (marker & 0x0f);
    // The count is written as an integer, and has to be one that fits.
    if (marker >> 4 != 0x1 || width > 8 || width >= m_size - found.start)
        return false;
    found.count = number(found.start + 1, width);
    found.start += 1 + width;
    return true;
}

/// `count` is at most the list's size here, so that nothing overflows.
quint64 PropertyListGraph::byteLength(const Element& found) const
{
    switch (found.kind) {
    case Kind::Integer:
    case Kind::Real:
    case Kind::Date:
        return quint64{1} << found.count;
    case Kind::Data:
        return found.count;
    case Kind::Text:
        return isWide(found.marker) ? found.count * 2 : found.count;
    case Kind::Reference:
        return found.count + 1;
    case Kind::Array:
        return found.count * m_referenceWidth;
    case Kind::Dictionary:
        return found.count * m_referenceWidth * 2;
    default:
        return 0;
    }
}

const char* PropertyListGraph::content(const Element& element) const
{
    return m_bytes.constData() + element.start;
}

QVariant PropertyListGraph::value(const Element& element) const
{
    switch (element.kind) {
    case Kind::Boolean:
        return detailOf(element.marker) == trueDetail;
    case Kind::Integer:
        return static_cast<qint64>(integer(element));
    case Kind::Real:
        if (detailOf(element.marker) == floatDetail)
            return static_cast<double>(std::bit_cast<float>(static_cast<quint32>(number(element.start, 4))));
        return std::bit_cast<double>(number(element.start, 8));
    case Kind::Date:
        return dateFromSeconds(std::bit_cast<double>(number(element.start, 8)));
    case Kind::Data:
        return QByteArray(content(element), static_cast<qsizetype>(element.count));
    case Kind::Text:
        return text(element);
    default:
        return {};
    }
}

/// Of one that is longer than 8 bytes the last 8 count: writers use 16 for numbers above 2^63.
quint64 PropertyListGraph::integer(const Element& element) const
{
    const quint64 width = byteLength(element);
    const quint64 kept = std::min(width, quint64{8});
    return number(element.start + width - kept, kept);
}

QString PropertyListGraph::text(const Element& element) const
{
    const auto length = static_cast<qsizetype>(element.count);
    if (!isWide(element.marker))
        return QString::fromUtf8(content(element), length); // ASCII, or what careless writers put there
    QString text(length, Qt::Uninitialized);
    // Half a surrogate pair stays: leaving it out is up to the writer of XML.
    qFromBigEndian<char16_t>(content(element), length, text.data());
    return text;
}

quint64 PropertyListGraph::reference(const Element& element) const
{
    return element.kind == Kind::Reference ? integer(element) : noNode;
}

PropertyListGraph::Node PropertyListGraph::item(const Element& array, quint64 index) const
{
    // An archive may lead anywhere, so kind and range are checked here, once for all readers.
    return array.kind == Kind::Array && index < array.count ? nodeAt(array, index) : noNode;
}

PropertyListGraph::Node PropertyListGraph::key(const Element& dictionary, quint64 index) const
{
    const bool isThere = dictionary.kind == Kind::Dictionary && index < dictionary.count;
    return isThere ? nodeAt(dictionary, index) : noNode;
}

PropertyListGraph::Node PropertyListGraph::entry(const Element& dictionary, quint64 index) const
{
    const bool isThere = dictionary.kind == Kind::Dictionary && index < dictionary.count;
    return isThere ? nodeAt(dictionary, dictionary.count + index) : noNode;
}

bool PropertyListGraph::isText(const Element& element, QLatin1StringView wanted) const
{
    if (element.kind != Kind::Text || element.count != static_cast<quint64>(wanted.size()))
        return false;
    if (isWide(element.marker))
        return text(element) == wanted;
    // Compared in place: this is asked for every key of every object.
    return QLatin1StringView(content(element), wanted.size()) == wanted;
}

} // namespace quindle
