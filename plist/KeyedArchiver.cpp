#include "plist/KeyedArchiver.h"

#include <algorithm>
#include <utility>

#include <QDateTime>

#include "plist/PropertyListDate.h"

namespace quindle {

namespace {

const char* const missingObject = "$null";

/// The classes that one inherits from, itself first.
QStringList ancestry(const QString& name)
{
    const QString root = QStringLiteral("NSObject");
    // A mutable class inherits from the immutable one.
    const QString mutableMark = QStringLiteral("Mutable");
    return name.contains(mutableMark) ? QStringList{name, QString(name).remove(mutableMark), root}
                                      : QStringList{name, root};
}

QByteArray bytesOf(const quint32* numbers, std::size_t count)
{
    return QByteArray(reinterpret_cast<const char*>(numbers),
                      static_cast<qsizetype>(count * sizeof *numbers));
}

/// Usually it is one text that two lists share.
bool isSameText(const QString& left, const QString& right)
{
    return (left.constData() == right.constData() && left.size() == right.size()) || left == right;
}

} // namespace

QByteArray KeyedArchiver::archive(const QVariantList& records)
{
    if (m_objects.empty()) {
        keep(name(missingObject));
        // The root comes first by custom; it is known only when what it holds has been written.
        keep(0);
    }
    constexpr Reference root = 1;
    const Nodes added = referencesTo(records);
    m_items.insert(m_items.end(), added.cbegin(), added.cend());
    const Node items = m_list.addArray(m_items);
    m_objects[root] = instance("NSMutableArray", {{name("NS.objects"), items}});
    const Node top = m_list.addDictionary({{name("root"), referenceTo(root)}});
    const Node objects = m_list.addArray(m_objects);
    return m_list.finish(m_list.addDictionary({{name("$version"), m_list.addInteger(100000)},
                                               {name("$archiver"), name("NSKeyedArchiver")},
                                               {name("$top"), top},
                                               {name("$objects"), objects}}));
}

KeyedArchiver::Reference KeyedArchiver::keep(Node node)
{
    const auto reference = static_cast<Reference>(m_objects.size());
    m_objects.push_back(node);
    m_references.push_back(m_list.addReference(reference));
    return reference;
}

KeyedArchiver::Reference KeyedArchiver::keepOnce(Node node)
{
    if (node >= m_kept.size())
        m_kept.resize(std::size_t{node} * 2 + 1, 0);
    if (m_kept[node] == 0)
        m_kept[node] = keep(node);
    return m_kept[node];
}

KeyedArchiver::Reference KeyedArchiver::keepValue(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return keep(instance("NSNull", {}));
    case QMetaType::Bool:
        return keepOnce(m_list.addBoolean(value.toBool()));
    case QMetaType::Float:
    case QMetaType::Double:
        return keepOnce(m_list.addReal(value.toDouble()));
    case QMetaType::QString:
        return keepText(value.toString());
    case QMetaType::QDateTime:
        return keepDate(value.toDateTime());
    case QMetaType::QByteArray:
        return keep(instance("NSData", {{name("NS.data"), m_list.addData(value.toByteArray())}}));
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return keepList(value.toList());
    case QMetaType::QVariantMap:
        return keepMap(value.toMap());
    default:
        return keepOnce(m_list.addInteger(value.toLongLong()));
    }
}

KeyedArchiver::Reference KeyedArchiver::keepText(const QString& text)
{
    // Records that were read share their texts, so most are recognised by their place, without a look at
    // their characters.
    KnownText& known = m_knownTexts[text.constData()];
    if (known.reference != 0 && known.length == text.size())
        return known.reference;
    const Node node = m_list.addText(text);
    // As an object of its own: readers take the bare text for a missing object.
    const bool isMarked = text == QLatin1StringView(missingObject);
    known.reference = isMarked ? keep(instance("NSString", {{name("NS.string"), node}})) : keepOnce(node);
    known.length = text.size();
    return known.reference;
}

KeyedArchiver::Reference KeyedArchiver::keepDate(const QDateTime& date)
{
    if (!date.isValid())
        return keepValue({});
    return keep(instance("NSDate", {{name("NS.time"), m_list.addReal(secondsOfDate(date))}}));
}

KeyedArchiver::Reference KeyedArchiver::keepList(const QVariantList& list)
{
    return keepContainer("NSArray", std::nullopt, referencesTo(list));
}

KeyedArchiver::Reference KeyedArchiver::keepMap(const QVariantMap& map)
{
    const Node keys = keyList(map);
    Nodes values;
    values.reserve(static_cast<std::size_t>(map.size()));
    for (const QVariant& value : map)
        values.push_back(referenceTo(keepValue(value)));
    return keepContainer("NSDictionary", keys, values);
}

/// What tells a container from others.
QByteArray KeyedArchiver::containerContents(std::optional<Node> keys, const Nodes& items)
{
    // No list of keys is the first node.
    const Node list = keys.value_or(0);
    return bytesOf(items.data(), items.size()) + bytesOf(&list, 1);
}

/// With a list of keys, or without.
KeyedArchiver::Reference KeyedArchiver::keepContainer(const char* className, std::optional<Node> keys,
                                                      const Nodes& items)
{
    Reference& known = m_containers[containerContents(keys, items)];
    if (known != 0)
        return known;
    BinaryListWriter::Entries entries;
    if (keys)
        entries.emplace_back(name("NS.keys"), *keys);
    entries.emplace_back(name("NS.objects"), m_list.addArray(items));
    return known = keep(instance(className, std::move(entries)));
}

/// Compared key by key, which costs less than looking each of them up.
KeyedArchiver::Node KeyedArchiver::keyList(const QVariantMap& map)
{
    const auto isOfMap = [&map](const KeyList& list) {
        return std::equal(list.keys.cbegin(), list.keys.cend(), map.keyBegin(), map.keyEnd(), isSameText);
    };
    const auto known = std::find_if(m_keyLists.crbegin(), m_keyLists.crend(), isOfMap);
    if (known != m_keyLists.crend())
        return known->node;
    Nodes references;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        references.push_back(referenceTo(keepText(entry.key())));
    return rememberKeys(map.keys(), m_list.addArray(references));
}

KeyedArchiver::Node KeyedArchiver::rememberKeys(const QStringList& keys, Node node)
{
    // A history has a handful of them; in any other archive searching them all would take ever longer.
    constexpr std::size_t most = 64;
    if (m_keyLists.size() == most)
        m_keyLists.clear();
    m_keyLists.push_back({keys, node});
    return node;
}

KeyedArchiver::Reference KeyedArchiver::classNamed(const char* literal)
{
    const auto known = m_classes.constFind(literal);
    if (known != m_classes.cend())
        return *known;
    const auto resumed = m_resumedClasses.constFind(QLatin1String(literal));
    if (resumed != m_resumedClasses.cend())
        return *m_classes.insert(literal, *resumed);
    Nodes classes;
    for (const QString& ancestor : ancestry(QString::fromLatin1(literal)))
        classes.push_back(m_list.addText(ancestor));
    const Node description = m_list.addDictionary(
        {{name("$classname"), name(literal)}, {name("$classes"), m_list.addArray(classes)}});
    return *m_classes.insert(literal, keep(description));
}

KeyedArchiver::Node KeyedArchiver::name(const char* literal)
{
    const auto known = m_names.constFind(literal);
    return known != m_names.cend() ? *known
                                   : *m_names.insert(literal, m_list.addText(QString::fromLatin1(literal)));
}

KeyedArchiver::Node KeyedArchiver::instance(const char* className, BinaryListWriter::Entries entries)
{
    entries.emplace_back(name("$class"), referenceTo(classNamed(className)));
    return m_list.addDictionary(entries);
}

KeyedArchiver::Nodes KeyedArchiver::referencesTo(const QVariantList& list)
{
    Nodes references;
    references.reserve(static_cast<std::size_t>(list.size()));
    for (const QVariant& item : list)
        references.push_back(referenceTo(keepValue(item)));
    return references;
}

} // namespace quindle
