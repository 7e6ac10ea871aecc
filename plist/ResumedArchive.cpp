// How an archive that was written before is continued: what follows its records is left out and written anew.
#include "plist/KeyedArchiver.h"

#include <algorithm>
#include <limits>

namespace quindle {

namespace {

using Graph = PropertyListGraph;

/// The node of a dictionary's entry; none when there is no such key.
Graph::Node entryOf(const Graph& graph, const Graph::Element& dictionary, const char* key)
{
    for (quint64 index = 0; index < dictionary.count; ++index)
        if (graph.isText(graph.element(graph.key(dictionary, index)), QLatin1StringView(key)))
            return graph.entry(dictionary, index);
    return Graph::noNode;
}

Graph::Element elementOf(const Graph& graph, const Graph::Element& dictionary, const char* key)
{
    return graph.element(entryOf(graph, dictionary, key));
}

} // namespace

bool KeyedArchiver::resume(const PropertyListGraph& graph)
{
    const Element archive = graph.element(graph.root());
    const Element objects = elementOf(graph, archive, "$objects");
    const Element top = elementOf(graph, archive, "$top");
    constexpr quint64 rootObject = 1;
    if (graph.referenceAt(entryOf(graph, top, "root")) != rootObject ||
        !graph.isText(graph.element(graph.item(objects, 0)), QLatin1StringView("$null")))
        return false;
    const Element root = graph.element(graph.item(objects, rootObject));
    // The first node that is not of the records: they were written before the list of them.
    const Graph::Node items = entryOf(graph, root, "NS.objects");
    if (items > std::numeric_limits<Node>::max())
        return false;
    const auto end = static_cast<Node>(items);
    if (!m_list.resume(graph, end) || !resumeObjects(graph, objects, end))
        return false;
    const Element list = graph.element(items);
    for (quint64 index = 0; index < list.count; ++index) {
        const Graph::Node item = graph.item(list, index);
        if (item >= end)
            return false;
        m_items.push_back(static_cast<Node>(item));
    }
    return true;
}

/// Those that the nodes before `end` refer to, and one more: the root's class.
bool KeyedArchiver::resumeObjects(const PropertyListGraph& graph, const Element& objects, Node end)
{
    for (Node node = 0; node < end; ++node) {
        if (graph.element(node).kind != Kind::Reference)
            continue;
        // One for each object, in their order.
        if (graph.referenceAt(node) != m_references.size())
            return false;
        m_references.push_back(node);
    }
    if (objects.count != m_references.size() + 1)
        return false;
    for (Reference reference = 0; reference < m_references.size(); ++reference) {
        const Graph::Node node = graph.item(objects, reference);
        // The root is written anew.
        if (node >= end && reference != 1)
            return false;
        m_objects.push_back(reference == 1 ? 0 : static_cast<Node>(node));
    }
    m_kept.assign(end, 0);
    for (Reference reference = 2; reference < m_objects.size(); ++reference)
        knowObject(graph, reference);
    return true;
}

/// What is added later is compared with it.
void KeyedArchiver::knowObject(const PropertyListGraph& graph, Reference reference)
{
    const Node node = m_objects[reference];
    const Element element = graph.element(node);
    switch (element.kind) {
    case Kind::Text:
    case Kind::Boolean:
    case Kind::Integer:
    case Kind::Real:
        // A text that readers take for a missing object is never used again.
        if (m_kept[node] == 0 && !graph.isText(element, QLatin1StringView("$null")))
            m_kept[node] = reference;
        return;
    case Kind::Dictionary:
        knowClass(graph, element, reference);
        return knowContainer(graph, element, reference);
    default:
        return;
    }
}

void KeyedArchiver::knowClass(const PropertyListGraph& graph, const Element& description, Reference reference)
{
    const Element name = elementOf(graph, description, "$classname");
    if (name.kind == Kind::Text)
        m_resumedClasses.insert(graph.value(name).toString(), reference);
}

/// Classes come before their instances.
void KeyedArchiver::knowContainer(const PropertyListGraph& graph, const Element& instance,
                                  Reference reference)
{
    const Graph::Node keys = entryOf(graph, instance, "NS.keys");
    const bool hasKeys = keys != Graph::noNode;
    const QString wanted = hasKeys ? QStringLiteral("NSDictionary") : QStringLiteral("NSArray");
    const auto known = m_resumedClasses.constFind(wanted);
    const Element list = elementOf(graph, instance, "NS.objects");
    if (known == m_resumedClasses.cend() || list.kind != Kind::Array ||
        graph.referenceAt(entryOf(graph, instance, "$class")) != *known)
        return;
    Nodes items;
    items.reserve(list.count);
    for (quint64 index = 0; index < list.count; ++index)
        items.push_back(static_cast<Node>(graph.item(list, index)));
    m_containers.insert(
        containerContents(hasKeys ? std::optional(static_cast<Node>(keys)) : std::nullopt, items), reference);
    if (hasKeys)
        knowKeys(graph, static_cast<Node>(keys));
}

void KeyedArchiver::knowKeys(const PropertyListGraph& graph, Node list)
{
    const auto isList = [list](const KeyList& known) { return known.node == list; };
    if (std::any_of(m_keyLists.crbegin(), m_keyLists.crend(), isList))
        return;
    const Element array = graph.element(list);
    QStringList keys;
    for (quint64 index = 0; index < array.count; ++index) {
        const quint64 reference = graph.referenceAt(graph.item(array, index));
        const Element key = reference < m_objects.size() ? graph.element(m_objects[reference]) : Element();
        // Only lists of plain texts are used again.
        if (key.kind != Kind::Text || graph.isText(key, QLatin1StringView("$null")))
            return;
        keys.append(graph.value(key).toString());
    }
    rememberKeys(keys, list);
}

} // namespace quindle
