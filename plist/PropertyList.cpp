#include "plist/PropertyList.h"

#include <QHash>

#include "common/FileContents.h"
#include "plist/PropertyListGraph.h"
#include "plist/PropertyListLimits.h"

namespace quindle {

namespace {

using Kind = PropertyListGraph::Kind;
using Node = PropertyListGraph::Node;
using Element = PropertyListGraph::Element;

struct MadeValue
{
    QVariant value;
    Extent extent;
};

/// Makes the values of one list. What can be large is made once, however often the list refers to it.
class ValueMaker
{
public:
    explicit ValueMaker(const PropertyListGraph& graph)
        : m_graph(graph)
        , m_limits(graph.size())
    {
    }

    /// False when the list is broken at the node or below it, or goes beyond the limits.
    bool make(Node node, int level, MadeValue& made);

private:
    bool makeContainer(const Element& element, int level, MadeValue& made);
    bool makeArray(const Element& element, int level, MadeValue& made);
    bool makeDictionary(const Element& element, int level, MadeValue& made);
    bool makeContent(const Element& element, MadeValue& made);

    const PropertyListGraph& m_graph;
    PropertyListLimits m_limits;
    QHash<Node, MadeValue> m_made;
};

bool ValueMaker::make(Node node, int level, MadeValue& made)
{
    const auto known = m_made.constFind(node);
    if (known != m_made.cend()) {
        made = *known;
        return true;
    }
    const Element element = m_graph.element(node);
    const bool isContainer = element.kind == Kind::Array || element.kind == Kind::Dictionary;
    const bool isContent = element.kind == Kind::Text || element.kind == Kind::Data;
    if (isContainer || isContent) {
        const bool isMade = isContainer ? makeContainer(element, level, made) : makeContent(element, made);
        m_made.insert(node, made);
        return isMade;
    }
    if (element.kind == Kind::Reference)
        // As XML writes it, so that both encodings give the same value.
        made.value = QVariantMap{{QStringLiteral("CF$UID"), static_cast<qint64>(m_graph.reference(element))}};
    else
        made.value = m_graph.value(element);
    // Property lists hold no null, which only archives use.
    return element.kind != Kind::Invalid && element.kind != Kind::Null;
}

bool ValueMaker::makeContainer(const Element& element, int level, MadeValue& made)
{
    // Spent before any room is reserved: the count is only what the list says of itself.
    if (level > mostPropertyListLevels || !m_limits.spend(element.count))
        return false;
    made.extent.height = 1;
    return element.kind == Kind::Array ? makeArray(element, level, made)
                                       : makeDictionary(element, level, made);
}

bool ValueMaker::makeArray(const Element& element, int level, MadeValue& made)
{
    QVariantList list;
    list.reserve(static_cast<qsizetype>(element.count));
    for (quint64 index = 0; index < element.count; ++index) {
        MadeValue item;
        if (!make(m_graph.item(element, index), level + 1, item) || !m_limits.put(item.extent, made.extent))
            return false;
        list.append(std::move(item.value));
    }
    made.value = std::move(list);
    return true;
}

bool ValueMaker::makeDictionary(const Element& element, int level, MadeValue& made)
{
    QVariantMap map;
    for (quint64 index = 0; index < element.count; ++index) {
        MadeValue key;
        MadeValue entry;
        if (!make(m_graph.key(element, index), level + 1, key) || key.value.typeId() != QMetaType::QString ||
            !make(m_graph.entry(element, index), level + 1, entry) ||
            !m_limits.put(key.extent, made.extent) || !m_limits.put(entry.extent, made.extent))
            return false;
        map.insert(key.value.toString(), entry.value); // of equal keys the last one counts
    }
    made.value = std::move(map);
    return true;
}

bool ValueMaker::makeContent(const Element& element, MadeValue& made)
{
    const quint64 weight = weightOfContent(element.count);
    made.extent.weight += weight;
    if (!m_limits.spend(weight))
        return false;
    made.value = m_graph.value(element);
    return true;
}

} // namespace

std::optional<QVariant> propertyListFromBytes(const QByteArray& bytes)
{
    const PropertyListGraph graph(bytes);
    MadeValue root;
    if (!ValueMaker(graph).make(graph.root(), 1, root))
        return std::nullopt;
    return root.value;
}

std::optional<QVariant> propertyListFromFile(const QString& path)
{
    const FileContents file = fileContents(path, mostPropertyListBytes);
    return file.error == 0 ? propertyListFromBytes(file.bytes) : std::nullopt;
}

} // namespace quindle
