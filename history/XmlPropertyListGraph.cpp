#include "history/XmlPropertyListGraph.h"

#include <charconv>
#include <utility>

#include <QDateTime>
#include <QXmlStreamReader>

namespace quindle {

namespace {

using Kind = PropertyListGraph::Kind;

// Keyed archives are flat: whatever is nested deeper than this is none.
constexpr std::size_t deepestXmlNesting = 64;

QVariant integerFromText(QString text)
{
    text = text.trimmed();
    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+'))
        text.remove(0, 1);
    const bool isHexadecimal = text.startsWith(QStringLiteral("0x"), Qt::CaseInsensitive);
    bool isNumber = false;
    const quint64 magnitude =
        (isHexadecimal ? text.mid(2) : text).toULongLong(&isNumber, isHexadecimal ? 16 : 10);
    if (!isNumber)
        return {};
    return QVariant::fromValue(static_cast<qint64>(isNegative ? quint64{0} - magnitude : magnitude));
}

QVariant realFromText(const QString& text)
{
    const QByteArray digits = text.trimmed().toLower().toLatin1();
    const qsizetype sign = digits.startsWith('+') ? 1 : 0;
    double number = 0;
    const char* end = digits.constData() + digits.size();
    const auto read = std::from_chars(digits.constData() + sign, end, number);
    if (read.ptr != end || (read.ec != std::errc() && read.ec != std::errc::result_out_of_range))
        return {};
    return number;
}

QVariant dateFromText(const QString& text)
{
    const QDateTime date = QDateTime::fromString(text.trimmed(), Qt::ISODate);
    return date.isValid() ? QVariant(date.toLocalTime()) : QVariant();
}

QVariant dataFromText(const QString& text)
{
    QByteArray characters = text.toLatin1();
    characters.removeIf([](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    const auto decoded = QByteArray::fromBase64Encoding(characters, QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? QVariant(*decoded) : QVariant();
}

Kind scalarKind(QStringView name)
{
    if (name == u"string" || name == u"key")
        return Kind::Text;
    if (name == u"integer")
        return Kind::Integer;
    if (name == u"real")
        return Kind::Real;
    if (name == u"date")
        return Kind::Date;
    if (name == u"data")
        return Kind::Data;
    return name == u"true" || name == u"false" ? Kind::Boolean : Kind::Invalid;
}

QVariant scalarValue(Kind kind, QStringView name, const QString& text)
{
    switch (kind) {
    case Kind::Text:
        return text;
    case Kind::Integer:
        return integerFromText(text);
    case Kind::Real:
        return realFromText(text);
    case Kind::Date:
        return dateFromText(text);
    case Kind::Data:
        return dataFromText(text);
    default:
        return name == u"true";
    }
}

} // namespace

XmlPropertyListGraph::XmlPropertyListGraph(const QByteArray& bytes)
{
    QXmlStreamReader xml(bytes);
    m_open.emplace_back(); // holds the root
    const bool isWhole = readElements(xml) && m_open.size() == 1 && m_open.front().children.size() == 1;
    if (isWhole)
        m_root = m_open.front().children.front();
    m_open.clear();
}

bool XmlPropertyListGraph::readElements(QXmlStreamReader& xml)
{
    if (!xml.readNextStartElement() || xml.name() != u"plist")
        return false;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (!begin(xml))
                return false;
            break;
        case QXmlStreamReader::EndElement:
            if (m_open.size() > 1 && !end())
                return false;
            break;
        default:
            break;
        }
    }
    return !xml.hasError();
}

bool XmlPropertyListGraph::begin(QXmlStreamReader& xml)
{
    const QString name = xml.name().toString();
    if (name != u"array" && name != u"dict")
        return addScalar(xml, name);
    if (m_open.size() > deepestXmlNesting)
        return false;
    m_open.push_back({name == u"array" ? Kind::Array : Kind::Dictionary, {}});
    return true;
}

bool XmlPropertyListGraph::addScalar(QXmlStreamReader& xml, QStringView name)
{
    const Kind scalar = scalarKind(name);
    if (scalar == Kind::Invalid)
        return false;
    const bool isKey = name == u"key";
    const OpenElement& container = m_open.back();
    const bool wantsKey = container.kind == Kind::Dictionary && container.children.size() % 2 == 0;
    if (isKey != wantsKey)
        return false;
    const QVariant value = scalarValue(scalar, name, xml.readElementText());
    if (!value.isValid())
        return false;
    add({.kind = scalar, .value = value});
    return true;
}

bool XmlPropertyListGraph::end()
{
    const OpenElement container = std::move(m_open.back());
    m_open.pop_back();
    const bool isPaired = container.kind != Kind::Dictionary || container.children.size() % 2 == 0;
    const OpenElement& outer = m_open.back();
    const bool standsForKey = outer.kind == Kind::Dictionary && outer.children.size() % 2 == 0;
    if (!isPaired || standsForKey)
        return false;
    add(closed(container));
    return true;
}

void XmlPropertyListGraph::add(StoredElement element)
{
    m_open.back().children.push_back(m_elements.size());
    m_elements.push_back(std::move(element));
}

XmlPropertyListGraph::StoredElement XmlPropertyListGraph::closed(const OpenElement& container)
{
    const std::vector<Node>& children = container.children;
    if (container.kind == Kind::Dictionary && children.size() == 2) {
        const StoredElement& key = m_elements[children[0]];
        const StoredElement& number = m_elements[children[1]];
        if (number.kind == Kind::Integer && key.value.toString() == u"CF$UID")
            return {.kind = Kind::Reference, .value = number.value};
    }
    StoredElement element{
        .kind = container.kind, .value = {}, .firstChild = m_children.size(), .childCount = children.size()};
    m_children.insert(m_children.end(), children.cbegin(), children.cend());
    return element;
}

PropertyListGraph::Element XmlPropertyListGraph::element(Node node) const
{
    if (node >= m_elements.size())
        return {.kind = Kind::Invalid};
    const StoredElement& found = m_elements[node];
    const quint64 count = found.kind == Kind::Dictionary ? found.childCount / 2 : found.childCount;
    return {.kind = found.kind, .start = node, .count = count};
}

const XmlPropertyListGraph::StoredElement& XmlPropertyListGraph::stored(const Element& element) const
{
    return m_elements[element.start];
}

QVariant XmlPropertyListGraph::value(const Element& element) const
{
    const bool hasValue = element.kind > Kind::Invalid && element.kind != Kind::Reference;
    return hasValue ? stored(element).value : QVariant();
}

quint64 XmlPropertyListGraph::reference(const Element& element) const
{
    return element.kind == Kind::Reference ? stored(element).value.toULongLong() : noNode;
}

PropertyListGraph::Node XmlPropertyListGraph::child(const Element& element, quint64 index) const
{
    return m_children[stored(element).firstChild + index];
}

PropertyListGraph::Node XmlPropertyListGraph::item(const Element& array, quint64 index) const
{
    const bool isThere = array.kind == Kind::Array && index < array.count;
    return isThere ? child(array, index) : noNode;
}

bool XmlPropertyListGraph::addReferences(const Element& array, std::vector<quint64>& references) const
{
    if (array.kind != Kind::Array)
        return false;
    for (quint64 index = 0; index < array.count; ++index) {
        const StoredElement& item = m_elements[child(array, index)];
        if (item.kind != Kind::Reference)
            return false;
        references.push_back(item.value.toULongLong());
    }
    return true;
}

PropertyListGraph::Node XmlPropertyListGraph::key(const Element& dictionary, quint64 index) const
{
    const bool isThere = dictionary.kind == Kind::Dictionary && index < dictionary.count;
    return isThere ? child(dictionary, index * 2) : noNode;
}

PropertyListGraph::Node XmlPropertyListGraph::entry(const Element& dictionary, quint64 index) const
{
    const bool isThere = dictionary.kind == Kind::Dictionary && index < dictionary.count;
    return isThere ? child(dictionary, index * 2 + 1) : noNode;
}

bool XmlPropertyListGraph::isText(const Element& element, QLatin1StringView text) const
{
    return element.kind == Kind::Text && stored(element).value.toString() == text;
}

} // namespace quindle
