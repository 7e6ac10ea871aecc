#include "history/XmlPropertyListGraph.h"

#include <charconv>
#include <utility>

#include <QDateTime>
#include <QXmlStreamReader>

namespace quindle {

namespace {

using Kind = PropertyListGraph::Kind;

// Keyed archives are flat: whatever is nested deeper than this is none.
constexpr std::size_t deepestNesting = 64;

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
    if (m_open.size() > deepestNesting)
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

void XmlPropertyListGraph::add(Element element)
{
    m_open.back().children.push_back(m_elements.size());
    m_elements.push_back(std::move(element));
}

XmlPropertyListGraph::Element XmlPropertyListGraph::closed(const OpenElement& container)
{
    const std::vector<Node>& children = container.children;
    if (container.kind == Kind::Dictionary && children.size() == 2) {
        const Element& key = m_elements[children[0]];
        const Element& number = m_elements[children[1]];
        if (number.kind == Kind::Integer && key.value.toString() == u"CF$UID")
            return {.kind = Kind::Reference, .value = number.value};
    }
    const Element element{
        .kind = container.kind, .value = {}, .firstChild = m_children.size(), .childCount = children.size()};
    m_children.insert(m_children.end(), children.cbegin(), children.cend());
    return element;
}

const XmlPropertyListGraph::Element* XmlPropertyListGraph::element(Node node) const
{
    return node < m_elements.size() ? &m_elements[node] : nullptr;
}

PropertyListGraph::Kind XmlPropertyListGraph::kind(Node node) const
{
    const Element* found = element(node);
    return found ? found->kind : Kind::Invalid;
}

QVariant XmlPropertyListGraph::value(Node node) const
{
    const Element* found = element(node);
    return found && found->kind != Kind::Reference ? found->value : QVariant();
}

quint64 XmlPropertyListGraph::reference(Node node) const
{
    const Element* found = element(node);
    return found && found->kind == Kind::Reference ? found->value.toULongLong() : noNode;
}

quint64 XmlPropertyListGraph::count(Node node) const
{
    const Element* found = element(node);
    if (!found)
        return 0;
    return found->kind == Kind::Dictionary ? found->childCount / 2 : found->childCount;
}

PropertyListGraph::Node XmlPropertyListGraph::child(Node node, Kind wanted, quint64 index) const
{
    const Element* found = element(node);
    const bool isThere = found && found->kind == wanted && index < found->childCount;
    return isThere ? m_children[found->firstChild + index] : noNode;
}

PropertyListGraph::Node XmlPropertyListGraph::item(Node array, quint64 index) const
{
    return child(array, Kind::Array, index);
}

bool XmlPropertyListGraph::addReferences(Node array, std::vector<quint64>& references) const
{
    const Element* found = element(array);
    if (!found || found->kind != Kind::Array)
        return false;
    for (quint64 index = 0; index < found->childCount; ++index) {
        const Node node = m_children[found->firstChild + index];
        if (kind(node) != Kind::Reference)
            return false;
        references.push_back(reference(node));
    }
    return true;
}

PropertyListGraph::Node XmlPropertyListGraph::key(Node dictionary, quint64 index) const
{
    return child(dictionary, Kind::Dictionary, index * 2);
}

PropertyListGraph::Node XmlPropertyListGraph::entry(Node dictionary, quint64 index) const
{
    return child(dictionary, Kind::Dictionary, index * 2 + 1);
}

bool XmlPropertyListGraph::isText(Node node, QLatin1StringView text) const
{
    const Element* found = element(node);
    return found && found->kind == Kind::Text && found->value.toString() == text;
}

} // namespace quindle
