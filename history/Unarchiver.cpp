#include "history/Unarchiver.h"

#include <algorithm>
#include <limits>
#include <map>

#include "common/NumberConversion.h"
#include "common/ValueDescription.h"
#include "history/ArchiveDate.h"

namespace quindle {

namespace {

constexpr quint32 notRead = std::numeric_limits<quint32>::max();
constexpr quint32 beingRead = notRead - 1;
constexpr int deepestNesting = 200;       // records are two levels deep, registry entries a few more
constexpr quint64 charactersOfValue = 16; // that take the memory of one value

// So many values may be read out of an archive of this size in bytes. Honest ones hold fewer than one in a
// byte; the rest is for small archives whose objects share their lists of keys.
quint64 readableValues(quint64 size)
{
    return size + 64 * 1024;
}

// So many may come of them where shared objects are walked through as often as they appear: enough for a
// lifetime of records that are all the same, and an end to archives made to unfold for ever.
quint64 unfoldedValues(quint64 size)
{
    constexpr quint64 million = 1024 * 1024;
    return std::min(64 * size, 64 * million) + 4 * million;
}

const char* const damagedObject = "an object is damaged";

} // namespace

Unarchiver::Unarchiver(const PropertyListGraph& graph, quint64 size)
    : m_graph(graph)
    , m_left(readableValues(size))
    , m_unfoldedAllowed(unfoldedValues(size))
{
}

bool Unarchiver::readRecords(QVariantList& records)
{
    Node root = PropertyListGraph::noNode;
    if (!findRoot(root))
        return false;
    if (m_graph.kind(root) != Kind::Dictionary || classOf(root) != ArchivedClass::Array)
        return fail("its root is no array");
    const auto elements = references(root, "NS.objects", "NS.object.");
    if (!elements)
        return fail(damagedObject);
    Object whole;
    records.reserve(static_cast<qsizetype>(elements->size()));
    for (const quint64 reference : *elements) {
        const Object* record = object(reference, 1);
        if (!record || !add(*record, whole))
            return false;
        if (record->value.typeId() != QMetaType::QVariantMap || record->hasNumberKeys)
            return fail("an element is no dictionary with text keys");
        records.append(record->value);
    }
    return true;
}

bool Unarchiver::findRoot(Node& root)
{
    const Node archive = m_graph.root();
    if (m_graph.kind(archive) != Kind::Dictionary)
        return fail("it is no property list of an archive");
    if (!m_graph.isText(find(archive, "$archiver"), QLatin1StringView("NSKeyedArchiver")))
        return fail("it is no keyed archive");
    m_objects = find(archive, "$objects");
    const quint64 count = m_graph.count(m_objects);
    const Node reference = find(find(archive, "$top"), "root");
    if (m_graph.kind(m_objects) != Kind::Array || count >= beingRead ||
        m_graph.kind(reference) != Kind::Reference)
        return fail("it has no root object");
    m_positions.assign(count, notRead);
    root = resolved(reference);
    return true;
}

/// The object that a reference names, read now if it was not before.
const Unarchiver::Object* Unarchiver::object(quint64 reference, int depth)
{
    if (reference >= m_positions.size()) {
        fail("a reference leads nowhere");
        return nullptr;
    }
    const quint32 position = m_positions[reference];
    if (position < beingRead)
        return &m_read[position];
    if (position == beingRead || depth > deepestNesting) {
        fail(position == beingRead ? "an object contains itself" : "its objects are nested too deep");
        return nullptr;
    }
    m_positions[reference] = beingRead;
    Object object;
    if (!read(m_graph.item(m_objects, reference), depth, object)) {
        fail(damagedObject);
        return nullptr;
    }
    m_positions[reference] = static_cast<quint32>(m_read.size());
    m_read.push_back(std::move(object));
    return &m_read.back();
}

bool Unarchiver::read(Node node, int depth, Object& object)
{
    switch (m_graph.kind(node)) {
    case Kind::Dictionary:
        return readInstance(node, depth, object);
    case Kind::Null:
        return true;
    case Kind::Text:
        return m_graph.isText(node, QLatin1StringView("$null")) || readText(node, object);
    case Kind::Data:
        return readData(node, object);
    case Kind::Boolean:
    case Kind::Integer:
    case Kind::Real:
    case Kind::Date:
        object.value = m_graph.value(node);
        return object.value.isValid();
    default:
        return false;
    }
}

bool Unarchiver::readInstance(Node node, int depth, Object& object)
{
    if (!spend(m_graph.count(node)))
        return false;
    switch (classOf(node)) {
    case ArchivedClass::Array:
        return readArray(node, depth, object);
    case ArchivedClass::Dictionary:
        return readDictionary(node, depth, object);
    case ArchivedClass::Text: {
        const Node text = resolved(find(node, "NS.string"));
        return readText(text != PropertyListGraph::noNode ? text : resolved(find(node, "NS.bytes")), object);
    }
    case ArchivedClass::Data:
        return readData(resolved(find(node, "NS.data")), object);
    case ArchivedClass::Date:
        return readDate(node, object);
    case ArchivedClass::Number:
        return readNumber(node, object);
    case ArchivedClass::Null:
        return true;
    case ArchivedClass::Unknown:
        break;
    }
    return fail("an object is of a class that is not known");
}

bool Unarchiver::readArray(Node node, int depth, Object& object)
{
    const auto items = references(node, "NS.objects", "NS.object.");
    if (!items)
        return false;
    QVariantList list;
    list.reserve(static_cast<qsizetype>(items->size()));
    for (const quint64 reference : *items) {
        const Object* item = this->object(reference, depth + 1);
        if (!item || !add(*item, object))
            return false;
        list.append(item->value);
    }
    object.value = list;
    return true;
}

bool Unarchiver::readDictionary(Node node, int depth, Object& object)
{
    const auto keys = references(node, "NS.keys", "NS.key.");
    const auto values = references(node, "NS.objects", "NS.object.");
    if (!keys || !values || keys->size() != values->size())
        return false;
    QVariantMap map;
    for (std::size_t index = 0; index < keys->size(); ++index) {
        const Object* key = this->object((*keys)[index], depth + 1);
        const Object* value = key ? this->object((*values)[index], depth + 1) : nullptr;
        if (!value || !insertKey(*key, *value, map, object))
            return false;
    }
    object.value = map;
    return true;
}

bool Unarchiver::insertKey(const Object& key, const Object& value, QVariantMap& map, Object& object)
{
    const bool isText = key.value.typeId() == QMetaType::QString;
    if (!isText && !isNumber(key.value))
        return false;
    object.hasNumberKeys = object.hasNumberKeys || !isText;
    map.insert(isText ? key.value.toString() : numberDescription(key.value), value.value);
    return add(key, object) && add(value, object);
}

/// From a text as well as from its UTF-8 bytes.
bool Unarchiver::readText(Node node, Object& object)
{
    const QVariant value = m_graph.value(node);
    if (value.typeId() == QMetaType::QByteArray)
        object.value = QString::fromUtf8(value.toByteArray());
    else if (value.typeId() == QMetaType::QString)
        object.value = value;
    else
        return false;
    const auto length = static_cast<quint64>(object.value.toString().size());
    object.weight += length / charactersOfValue;
    return spend(length / charactersOfValue);
}

bool Unarchiver::readData(Node node, Object& object)
{
    object.value = m_graph.value(node);
    if (object.value.typeId() != QMetaType::QByteArray)
        return false;
    const auto length = static_cast<quint64>(object.value.toByteArray().size());
    object.weight += length / charactersOfValue;
    return spend(length / charactersOfValue);
}

bool Unarchiver::readDate(Node node, Object& object)
{
    const auto seconds = convertToDouble(m_graph.value(resolved(find(node, "NS.time"))));
    if (!seconds)
        return false;
    object.value = dateFromArchivedSeconds(*seconds);
    return object.value.isValid();
}

bool Unarchiver::readNumber(Node node, Object& object)
{
    for (const char* key : {"NS.number", "NS.boolval", "NS.intval", "NS.dblval"}) {
        object.value = m_graph.value(resolved(find(node, key)));
        if (isNumber(object.value))
            return true;
    }
    return false;
}

ArchivedClass Unarchiver::classOf(Node node)
{
    const Node description = find(node, "$class");
    if (m_graph.kind(description) != Kind::Reference)
        return ArchivedClass::Unknown;
    const quint64 reference = m_graph.reference(description);
    const auto known = m_classes.constFind(reference);
    if (known != m_classes.cend())
        return *known;
    const ArchivedClass archived = readClass(resolved(description));
    m_classes.insert(reference, archived);
    return archived;
}

/// The first class that is known, from the object's own up through those it inherits from.
ArchivedClass Unarchiver::readClass(Node description)
{
    const ArchivedClass own = archivedClass(m_graph, find(description, "$classname"));
    const Node inherited = find(description, "$classes");
    const quint64 count = m_graph.kind(inherited) == Kind::Array ? m_graph.count(inherited) : 0;
    if (own != ArchivedClass::Unknown || !spend(m_graph.count(description) + count))
        return own;
    for (quint64 index = 0; index < count; ++index) {
        const ArchivedClass archived = archivedClass(m_graph, m_graph.item(inherited, index));
        if (archived != ArchivedClass::Unknown)
            return archived;
    }
    return ArchivedClass::Unknown;
}

PropertyListGraph::Node Unarchiver::find(Node dictionary, const char* key) const
{
    if (m_graph.kind(dictionary) != Kind::Dictionary)
        return PropertyListGraph::noNode;
    const quint64 count = m_graph.count(dictionary);
    for (quint64 index = 0; index < count; ++index)
        if (m_graph.isText(m_graph.key(dictionary, index), QLatin1StringView(key)))
            return m_graph.entry(dictionary, index);
    return PropertyListGraph::noNode;
}

/// What a reference leads to; any other node is itself.
PropertyListGraph::Node Unarchiver::resolved(Node node) const
{
    if (m_graph.kind(node) != Kind::Reference)
        return node;
    return m_graph.item(m_objects, m_graph.reference(node));
}

/// The references in a list, or those that older encoders number one by one.
std::optional<Unarchiver::References> Unarchiver::references(Node node, const char* list,
                                                             const char* numbered)
{
    const Node found = find(node, list);
    return found == PropertyListGraph::noNode ? numberedReferences(node, numbered) : listedReferences(found);
}

std::optional<Unarchiver::References> Unarchiver::listedReferences(Node list)
{
    const quint64 count = m_graph.count(list);
    if (!spend(count))
        return std::nullopt;
    References found;
    found.reserve(count);
    if (!m_graph.addReferences(list, found))
        return std::nullopt;
    return found;
}

std::optional<Unarchiver::References> Unarchiver::numberedReferences(Node node, const char* prefix)
{
    const QLatin1StringView start(prefix);
    std::map<quint64, quint64> numbered;
    for (quint64 index = 0; index < m_graph.count(node); ++index) {
        const QString key = m_graph.value(m_graph.key(node, index)).toString();
        bool isNumber = false;
        const quint64 number = key.startsWith(start) ? key.mid(start.size()).toULongLong(&isNumber) : 0;
        const Node entry = m_graph.entry(node, index);
        if (isNumber && m_graph.kind(entry) == Kind::Reference)
            numbered.insert_or_assign(number, m_graph.reference(entry));
    }
    References found;
    for (const auto& [number, reference] : numbered) {
        if (number != found.size())
            return std::nullopt;
        found.push_back(reference);
    }
    return found;
}

bool Unarchiver::spend(quint64 values)
{
    if (values > m_left)
        return fail("it says it holds more than it has room for");
    m_left -= values;
    return true;
}

/// Counts shared parts as often as they appear: what is made here is walked through as a tree.
bool Unarchiver::add(const Object& part, Object& whole)
{
    whole.weight += part.weight;
    return whole.weight <= m_unfoldedAllowed ||
           fail("its shared objects unfold to more than it has room for");
}

/// The first reason is the one that is told.
bool Unarchiver::fail(const char* reason)
{
    if (m_fault.isEmpty())
        m_fault = QString::fromLatin1(reason);
    return false;
}

} // namespace quindle
