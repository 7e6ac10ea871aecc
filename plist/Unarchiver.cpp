#include "plist/Unarchiver.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "common/NumberConversion.h"
#include "common/ValueDescription.h"
#include "plist/PropertyListDate.h"

namespace quindle {

namespace {

// Two marks among the positions, so that one vector holds both.
constexpr quint32 notRead = std::numeric_limits<quint32>::max();
constexpr quint32 beingRead = notRead - 1;

// These are as cheap to read again as to keep.
bool isPlainNumber(PropertyListGraph::Kind kind)
{
    return kind == PropertyListGraph::Kind::Boolean || kind == PropertyListGraph::Kind::Integer ||
           kind == PropertyListGraph::Kind::Real;
}

class Percent
{
public:
    Percent(std::size_t all, const ReadingProgress& progress)
        : m_all(all)
        , m_progress(progress)
    {
    }

    void advance()
    {
        const auto percent = static_cast<int>(++m_done * 100 / m_all);
        if (percent != std::exchange(m_told, percent) && m_progress)
            m_progress(percent);
    }

private:
    std::size_t m_all;
    std::size_t m_done = 0;
    int m_told = 0;
    const ReadingProgress& m_progress;
};

const char* const damagedObject = "an object is damaged";
const char* const tooDeep = "its objects are nested too deep";

} // namespace

Unarchiver::Unarchiver(const PropertyListGraph& graph, std::optional<QStringList> kept)
    : m_graph(graph)
    , m_limits(graph.size())
    , m_kept(std::move(kept))
{
}

bool Unarchiver::readRecords(QVariantList& records, const ReadingProgress& progress)
{
    Element root;
    if (!findRoot(root))
        return false;
    // An instance is a dictionary that names its class. A set would read the same but is not a history: its
    // records have no order.
    if (root.kind != Kind::Dictionary || classOf(root) != ArchivedClass::Array)
        return fail("its root is not an array");
    const auto elements = references(root, "NS.objects", "NS.object.");
    if (!elements)
        return fail(damagedObject);
    Extent extent{.height = 1};
    // Safe to reserve: the references were counted against the file's size.
    records.reserve(static_cast<qsizetype>(elements->size()));
    Percent percent(elements->size(), progress);
    for (const quint64 reference : *elements) {
        Object record;
        if (!object(reference, 2, record) || !put(record, extent))
            return false;
        if (record.value.typeId() != QMetaType::QVariantMap || record.hasNumberKeys)
            return fail("an element is not a dictionary with text keys");
        records.append(std::move(record.value));
        percent.advance();
    }
    return true;
}

bool Unarchiver::findRoot(Element& root)
{
    const Element archive = m_graph.element(m_graph.root());
    if (archive.kind != Kind::Dictionary)
        return fail("it is not the property list of an archive");
    if (!m_graph.isText(find(archive, "$archiver"), QLatin1StringView("NSKeyedArchiver")))
        return fail("it is not a keyed archive");
    m_objects = find(archive, "$objects");
    const Element reference = find(find(archive, "$top"), "root");
    // The upper numbers are the marks.
    if (m_objects.kind != Kind::Array || m_objects.count >= beingRead || reference.kind != Kind::Reference)
        return fail("it has no root object");
    m_positions.assign(m_objects.count, notRead);
    root = resolved(reference);
    return true;
}

/// The object that a reference names, read now if it was not before.
bool Unarchiver::object(quint64 reference, int level, Object& object)
{
    if (reference >= m_positions.size())
        return fail("a reference leads nowhere");
    const quint32 position = m_positions[reference];
    if (position < beingRead) {
        object = m_read[position];
        return true;
    }
    // A list can be made to refer to itself; following it would never end.
    if (position == beingRead)
        return fail("an object contains itself");
    const Element element = archived(reference);
    if (isPlainNumber(element.kind)) {
        object.value = m_graph.value(element);
        return true;
    }
    // Marked before its parts are read, so that one of them leading back here is noticed.
    m_positions[reference] = beingRead;
    if (!read(element, level, object))
        return fail(damagedObject);
    m_positions[reference] = static_cast<quint32>(m_read.size());
    m_read.push_back(object);
    return true;
}

bool Unarchiver::read(const Element& element, int level, Object& object)
{
    switch (element.kind) {
    case Kind::Dictionary:
        return readInstance(element, level, object);
    case Kind::Null:
        return true;
    case Kind::Text:
        // The text that every archive has in place of a missing object.
        return m_graph.isText(element, QLatin1StringView("$null")) || readText(element, object);
    case Kind::Data:
        return readData(element, object);
    case Kind::Date:
        object.value = m_graph.value(element);
        return object.value.isValid();
    default:
        return false;
    }
}

bool Unarchiver::readInstance(const Element& element, int level, Object& object)
{
    if (!spend(element.count))
        return false;
    const ArchivedClass archived = classOf(element);
    switch (archived) {
    case ArchivedClass::Array:
    case ArchivedClass::Set:
    case ArchivedClass::Dictionary:
        return readContainer(element, archived, level, object);
    case ArchivedClass::Text: {
        const Element text = resolved(find(element, "NS.string"));
        return readText(text.kind != Kind::Missing ? text : resolved(find(element, "NS.bytes")), object);
    }
    case ArchivedClass::Data:
        return readData(resolved(find(element, "NS.data")), object);
    case ArchivedClass::Date:
        return readDate(element, object);
    case ArchivedClass::Number:
        return readNumber(element, object);
    case ArchivedClass::Null:
        return true;
    case ArchivedClass::Unknown:
        break;
    }
    return fail("an object is of a class that is not known");
}

bool Unarchiver::readContainer(const Element& element, ArchivedClass archived, int level, Object& object)
{
    // Reading recurses, and so does the destructor of what was read.
    if (level > mostPropertyListLevels)
        return fail(tooDeep);
    object.extent.height = 1;
    return archived == ArchivedClass::Dictionary ? readDictionary(element, level, object)
                                                 : readArray(element, level, object);
}

bool Unarchiver::readArray(const Element& element, int level, Object& object)
{
    const auto items = references(element, "NS.objects", "NS.object.");
    if (!items)
        return false;
    QVariantList list;
    list.reserve(static_cast<qsizetype>(items->size()));
    for (const quint64 reference : *items) {
        Object item;
        if (!this->object(reference, level + 1, item) || !put(item, object.extent))
            return false;
        list.append(std::move(item.value));
    }
    object.value = list;
    return true;
}

bool Unarchiver::readDictionary(const Element& element, int level, Object& object)
{
    const KeyList* keys = keysOf(element, level + 1);
    if (!keys)
        return false;
    const auto values = references(element, "NS.objects", "NS.object.");
    // With different lengths there is no knowing which value belongs to which key.
    if (!values || keys->sorted.size() != values->size())
        return false;
    object.extent.weight += keys->weight;
    std::map<QString, QVariant> map;
    for (const Key& key : keys->sorted) {
        Object value;
        if (!this->object((*values)[key.index], level + 1, value) || !put(value, object.extent))
            return false;
        if (!key.isKept)
            continue;
        // In sorted order, so each entry goes to the end without a search.
        if (key.isRepeated)
            map.rbegin()->second = std::move(value.value);
        else
            map.emplace_hint(map.end(), key.text, std::move(value.value));
    }
    object.value = QVariantMap(std::move(map));
    object.hasNumberKeys = keys->hasNumbers;
    return true;
}

/// Nothing when they are damaged.
const Unarchiver::KeyList* Unarchiver::keysOf(const Element& dictionary, int level)
{
    const Element list = find(dictionary, "NS.keys");
    if (list.kind == Kind::Array) {
        // Most records share the list itself, which its place identifies without a look at its items.
        const auto known = m_keysAt.constFind(list.start);
        if (known != m_keysAt.cend())
            return spend(list.count) ? *known : nullptr;
    }
    const auto references = this->references(dictionary, "NS.keys", "NS.key.");
    const KeyList* keys = references ? keyList(*references, level) : nullptr;
    if (keys && list.kind == Kind::Array)
        m_keysAt.insert(list.start, keys);
    return keys;
}

/// Nothing when one of the references leads to something that cannot be a key.
const Unarchiver::KeyList* Unarchiver::keyList(const References& references, int level)
{
    const auto known = m_keyLists.find(references);
    // Records of one history share their keys, so these are sorted once.
    if (known != m_keyLists.end())
        return &known->second;
    KeyList list;
    list.sorted.reserve(references.size());
    for (const quint64 reference : references)
        if (!readKey(reference, level, list))
            return nullptr;
    // Stable, so that of equal keys the last one in the file stays the last.
    std::stable_sort(list.sorted.begin(), list.sorted.end(),
                     [](const Key& left, const Key& right) { return left.text < right.text; });
    for (std::size_t index = 1; index < list.sorted.size(); ++index)
        list.sorted[index].isRepeated = list.sorted[index].text == list.sorted[index - 1].text;
    return &m_keyLists.emplace(references, std::move(list)).first->second;
}

bool Unarchiver::readKey(quint64 reference, int level, KeyList& list)
{
    Object key;
    if (!object(reference, level, key))
        return false;
    const bool isText = key.value.typeId() == QMetaType::QString;
    if (!isText && !isNumber(key.value))
        return false;
    list.hasNumbers = list.hasNumbers || !isText;
    const QString text = isText ? key.value.toString() : numberDescription(key.value);
    list.sorted.push_back(
        {.text = text, .index = list.sorted.size(), .isKept = !m_kept || m_kept->contains(text)});
    list.weight += key.extent.weight;
    return true;
}

/// From a text as well as from its UTF-8 bytes.
bool Unarchiver::readText(const Element& element, Object& object)
{
    const QVariant value = m_graph.value(element);
    if (value.typeId() == QMetaType::QByteArray)
        object.value = QString::fromUtf8(value.toByteArray());
    else if (value.typeId() == QMetaType::QString)
        object.value = value;
    else
        return false;
    return spendContent(object.value.toString().size(), object);
}

bool Unarchiver::readData(const Element& element, Object& object)
{
    object.value = m_graph.value(element);
    if (object.value.typeId() != QMetaType::QByteArray)
        return false;
    return spendContent(object.value.toByteArray().size(), object);
}

bool Unarchiver::readDate(const Element& element, Object& object)
{
    const auto seconds = convertToDouble(m_graph.value(resolved(find(element, "NS.time"))));
    if (!seconds)
        return false;
    // Local times ask the system for the zone, once when they are made and again when they are written.
    object.value = dateFromSeconds(*seconds, Qt::UTC);
    return object.value.isValid();
}

bool Unarchiver::readNumber(const Element& element, Object& object)
{
    // Encoders name the value differently.
    for (const char* key : {"NS.number", "NS.boolval", "NS.intval", "NS.dblval"}) {
        const Element number = resolved(find(element, key));
        // A long text that many instances share is not copied for each.
        object.value = isPlainNumber(number.kind) ? m_graph.value(number) : QVariant();
        if (isNumber(object.value))
            return true;
    }
    return false;
}

ArchivedClass Unarchiver::classOf(const Element& instance)
{
    const Element description = find(instance, "$class");
    if (description.kind != Kind::Reference)
        return ArchivedClass::Unknown;
    // All records have the same few classes, so each is looked up once.
    const quint64 reference = m_graph.reference(description);
    const auto known = m_classes.constFind(reference);
    if (known != m_classes.cend())
        return *known;
    const ArchivedClass archived = readClass(resolved(description));
    m_classes.insert(reference, archived);
    return archived;
}

/// The first class that is known, from the object's own up through those it inherits from.
ArchivedClass Unarchiver::readClass(const Element& description)
{
    // Spent before it is searched: many references can be made to lead to one long description.
    if (!spend(description.count))
        return ArchivedClass::Unknown;
    const ArchivedClass own = archivedClass(m_graph, find(description, "$classname"));
    const Element inherited = find(description, "$classes");
    const quint64 count = inherited.kind == Kind::Array ? inherited.count : 0;
    if (own != ArchivedClass::Unknown || !spend(count))
        return own;
    for (quint64 index = 0; index < count; ++index) {
        const ArchivedClass archived =
            archivedClass(m_graph, m_graph.element(m_graph.item(inherited, index)));
        if (archived != ArchivedClass::Unknown)
            return archived;
    }
    return ArchivedClass::Unknown;
}

PropertyListGraph::Element Unarchiver::find(const Element& dictionary, const char* key) const
{
    if (dictionary.kind != Kind::Dictionary)
        return {};
    for (quint64 index = 0; index < dictionary.count; ++index)
        if (m_graph.isText(m_graph.element(m_graph.key(dictionary, index)), QLatin1StringView(key)))
            return m_graph.element(m_graph.entry(dictionary, index));
    return {};
}

/// What a reference leads to; any other element is itself.
PropertyListGraph::Element Unarchiver::resolved(const Element& element) const
{
    return element.kind == Kind::Reference ? archived(m_graph.reference(element)) : element;
}

PropertyListGraph::Element Unarchiver::archived(quint64 reference) const
{
    return m_graph.element(m_graph.item(m_objects, reference));
}

/// The references in a list, or those that older encoders number one by one.
std::optional<Unarchiver::References> Unarchiver::references(const Element& element, const char* list,
                                                             const char* numbered)
{
    const Element found = find(element, list);
    return found.kind == Kind::Missing ? numberedReferences(element, numbered) : listedReferences(found);
}

std::optional<Unarchiver::References> Unarchiver::listedReferences(const Element& list)
{
    // Spent before room is reserved: the count is only what the file says of itself.
    if (list.kind != Kind::Array || !spend(list.count))
        return std::nullopt;
    References found;
    found.reserve(list.count);
    for (quint64 index = 0; index < list.count; ++index) {
        const quint64 reference = m_graph.referenceAt(m_graph.item(list, index));
        if (reference == PropertyListGraph::noNode)
            return std::nullopt;
        found.push_back(reference);
    }
    return found;
}

std::optional<Unarchiver::References> Unarchiver::numberedReferences(const Element& element,
                                                                     const char* prefix)
{
    // Sorted by number: a dictionary may hold them in any order.
    const QLatin1StringView start(prefix);
    std::map<quint64, quint64> numbered;
    for (quint64 index = 0; index < element.count; ++index) {
        const Element keyElement = m_graph.element(m_graph.key(element, index));
        // All entries can be made to share one long key.
        if (!spend(weightOfContent(keyElement.count)))
            return std::nullopt;
        const QString key = m_graph.value(keyElement).toString();
        bool isNumber = false;
        const quint64 number = key.startsWith(start) ? key.mid(start.size()).toULongLong(&isNumber) : 0;
        const Element entry = m_graph.element(m_graph.entry(element, index));
        if (isNumber && entry.kind == Kind::Reference)
            numbered.insert_or_assign(number, m_graph.reference(entry));
    }
    References found;
    for (const auto& [number, reference] : numbered) {
        // A gap means that the file lost an item.
        if (number != found.size())
            return std::nullopt;
        found.push_back(reference);
    }
    return found;
}

bool Unarchiver::spend(quint64 values)
{
    return m_limits.spend(values) || fail("it says it holds more than it has room for");
}

bool Unarchiver::spendContent(qsizetype count, Object& object)
{
    const quint64 weight = weightOfContent(static_cast<quint64>(count));
    object.extent.weight += weight;
    return spend(weight);
}

bool Unarchiver::put(const Object& part, Extent& whole)
{
    // The height as well: a part that was read before, higher up, may be nested too deep here.
    if (m_limits.put(part.extent, whole))
        return true;
    return fail(whole.height > mostPropertyListLevels
                    ? tooDeep
                    : "its shared objects unfold to more than it has room for");
}

/// Only the first reason is kept: later ones follow from it.
bool Unarchiver::fail(const char* reason)
{
    if (m_fault.isEmpty())
        m_fault = QString::fromLatin1(reason);
    return false;
}

} // namespace quindle
