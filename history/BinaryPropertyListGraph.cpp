#include "history/BinaryPropertyListGraph.h"

#include <bit>

#include <QtEndian>

#include "history/ArchiveDate.h"

namespace quindle {

namespace {

using Kind = PropertyListGraph::Kind;
using Objects = BinaryPropertyListObjects;

constexpr quint8 wide =
    1; // the form of a text of 16-bit characters; those of a number are the object's details
constexpr quint8 falseDetail = 0x8;
constexpr quint8 trueDetail = 0x9;
constexpr quint8 singlePrecision = 2;

Kind singleKind(quint8 detail)
{
    if (detail == 0x0)
        return Kind::Null;
    return detail == falseDetail || detail == trueDetail ? Kind::Boolean : Kind::Invalid;
}

Kind kindOf(const Objects::Object& found)
{
    switch (found.type) {
    case Objects::Single:
        return singleKind(found.detail);
    case Objects::Integer:
        return found.detail <= 4 ? Kind::Integer : Kind::Invalid;
    case Objects::Real:
        return found.detail == 2 || found.detail == 3 ? Kind::Real : Kind::Invalid;
    case Objects::Date:
        return found.detail == 3 ? Kind::Date : Kind::Invalid;
    case Objects::Data:
        return Kind::Data;
    case Objects::Ascii:
    case Objects::Utf16:
        return Kind::Text;
    case Objects::Reference:
        return found.detail <= 7 ? Kind::Reference : Kind::Invalid;
    case Objects::Array:
        return Kind::Array;
    case Objects::Dictionary:
        return Kind::Dictionary;
    default:
        return Kind::Invalid;
    }
}

} // namespace

BinaryPropertyListGraph::BinaryPropertyListGraph(const QByteArray& bytes)
    : m_objects(bytes)
{
}

bool BinaryPropertyListGraph::isBinary(const QByteArray& bytes)
{
    return bytes.startsWith("bplist0");
}

PropertyListGraph::Element BinaryPropertyListGraph::root() const
{
    return element(m_objects.top());
}

PropertyListGraph::Element BinaryPropertyListGraph::element(Node node) const
{
    const Objects::Object found = m_objects.object(node);
    const Kind kind = kindOf(found);
    const quint8 textForm = found.type == Objects::Utf16 ? wide : 0;
    return {.kind = kind,
            .form = kind == Kind::Text ? textForm : found.detail,
            .start = found.start,
            .count = found.count};
}

const char* BinaryPropertyListGraph::content(const Element& element) const
{
    return m_objects.bytes().constData() + element.start;
}

QVariant BinaryPropertyListGraph::value(const Element& element) const
{
    switch (element.kind) {
    case Kind::Boolean:
        return element.form == trueDetail;
    case Kind::Integer:
        return integer(element);
    case Kind::Real:
        return real(element);
    case Kind::Date:
        return date(element);
    case Kind::Data:
        return QByteArray(content(element), static_cast<qsizetype>(element.count));
    case Kind::Text:
        return text(element);
    default:
        return {};
    }
}

/// Of the 16 bytes of the longest integers the lower half counts: a larger number has no place in 64 bits.
QVariant BinaryPropertyListGraph::integer(const Element& element) const
{
    const quint64 width = quint64{1} << element.form;
    const quint64 kept = width > 8 ? 8 : width;
    return static_cast<qint64>(m_objects.integer(element.start + width - kept, kept));
}

QVariant BinaryPropertyListGraph::real(const Element& element) const
{
    if (element.form == singlePrecision)
        return static_cast<double>(
            std::bit_cast<float>(static_cast<quint32>(m_objects.integer(element.start, sizeof(float)))));
    return std::bit_cast<double>(m_objects.integer(element.start, sizeof(double)));
}

QVariant BinaryPropertyListGraph::date(const Element& element) const
{
    return dateFromArchivedSeconds(std::bit_cast<double>(m_objects.integer(element.start, sizeof(double))));
}

QVariant BinaryPropertyListGraph::text(const Element& element) const
{
    const auto length = static_cast<qsizetype>(element.count);
    if (element.form != wide)
        return QString::fromLatin1(content(element), length);
    QString text(length, Qt::Uninitialized);
    qFromBigEndian<char16_t>(content(element), length, text.data());
    return text;
}

quint64 BinaryPropertyListGraph::reference(const Element& element) const
{
    return element.kind == Kind::Reference ? m_objects.integer(element.start, quint64{element.form} + 1)
                                           : noNode;
}

bool BinaryPropertyListGraph::addReferences(const Element& array, std::vector<quint64>& references) const
{
    if (array.kind != Kind::Array)
        return false;
    for (quint64 index = 0; index < array.count; ++index) {
        const Objects::Object item = m_objects.object(nodeAt(array, index));
        if (kindOf(item) != Kind::Reference)
            return false;
        references.push_back(m_objects.integer(item.start, quint64{item.detail} + 1));
    }
    return true;
}

PropertyListGraph::Node BinaryPropertyListGraph::nodeAt(const Element& container, quint64 index) const
{
    return m_objects.item({.start = container.start}, index);
}

PropertyListGraph::Node BinaryPropertyListGraph::item(const Element& array, quint64 index) const
{
    const bool isThere = array.kind == Kind::Array && index < array.count;
    return isThere ? nodeAt(array, index) : noNode;
}

PropertyListGraph::Node BinaryPropertyListGraph::key(const Element& dictionary, quint64 index) const
{
    const bool isThere = dictionary.kind == Kind::Dictionary && index < dictionary.count;
    return isThere ? nodeAt(dictionary, index) : noNode;
}

PropertyListGraph::Node BinaryPropertyListGraph::entry(const Element& dictionary, quint64 index) const
{
    const bool isThere = dictionary.kind == Kind::Dictionary && index < dictionary.count;
    return isThere ? nodeAt(dictionary, dictionary.count + index) : noNode;
}

bool BinaryPropertyListGraph::isText(const Element& element, QLatin1StringView wanted) const
{
    if (element.kind != Kind::Text || element.count != static_cast<quint64>(wanted.size()))
        return false;
    if (element.form == wide)
        return text(element).toString() == wanted;
    return QLatin1StringView(content(element), wanted.size()) == wanted;
}

} // namespace quindle
