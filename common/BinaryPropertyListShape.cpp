#include "common/BinaryPropertyListShape.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "common/BinaryPropertyListObjects.h"

namespace quindle {

namespace {

/// Shared texts and numbers are written out once for each reference, of which there are at most as many as
/// bytes; only containers that share containers go beyond that.
qint64 mostValues(const QByteArray& bytes)
{
    constexpr qint64 enoughForSmallLists = 1'000'000;
    return std::max(enoughForSmallLists, qint64{4} * bytes.size());
}

/// The objects of a list as a graph of references, of which each object is visited once.
class Shape
{
public:
    explicit Shape(const QByteArray& bytes)
        : m_objects(bytes)
        , m_visits(m_objects.count())
    {
    }

    bool isBounded() { return m_objects.count() > 0 && valuesBelow(m_objects.top(), 1); }

private:
    struct Visit
    {
        qint64 values = 0; ///< 0 before the object was visited, or while it is
        int height = 0;
        bool isOpen = false;
    };

    bool hasNul(quint64 textObject) const;
    std::optional<std::vector<quint64>> references(quint64 object) const;
    std::optional<qint64> valuesBelow(quint64 object, int depth);
    std::optional<Visit> visitChildren(quint64 object, int depth);

    BinaryPropertyListObjects m_objects;
    std::vector<Visit> m_visits;
};

/// True for a text with a NUL inside, which the library takes for a fault of the program where it is a key.
bool Shape::hasNul(quint64 textObject) const
{
    const auto text = m_objects.object(textObject);
    const quint64 unit = text.type == BinaryPropertyListObjects::Utf16 ? 2 : 1;
    if (text.type != BinaryPropertyListObjects::Ascii && unit == 1)
        return false;
    for (quint64 index = 0; index < text.count; ++index)
        if (m_objects.integer(text.start + index * unit, unit) == 0)
            return true;
    return false;
}

/// The objects that an array, set or dictionary refers to; none for any other object.
std::optional<std::vector<quint64>> Shape::references(quint64 object) const
{
    const auto own = m_objects.object(object);
    if (own.type == BinaryPropertyListObjects::Broken)
        return std::nullopt;
    if (own.type < BinaryPropertyListObjects::Array)
        return std::vector<quint64>();
    const bool isDictionary = own.type == BinaryPropertyListObjects::Dictionary;
    std::vector<quint64> found(isDictionary ? own.count * 2 : own.count);
    for (std::size_t index = 0; index < found.size(); ++index) {
        found[index] = m_objects.item(own, index);
        const bool isKey = isDictionary && index < own.count;
        if (found[index] >= m_objects.count() || (isKey && hasNul(found[index])))
            return std::nullopt;
    }
    return found;
}

/// Nothing beyond the bounds, for a circle, and for what lies outside the bytes.
std::optional<qint64> Shape::valuesBelow(quint64 object, int depth)
{
    const Visit known = m_visits[object];
    if (known.isOpen || depth + known.height > mostPropertyListLevels)
        return std::nullopt;
    if (known.values > 0)
        return known.values;
    m_visits[object].isOpen = true;
    const auto visit = visitChildren(object, depth);
    if (!visit)
        return std::nullopt;
    m_visits[object] = *visit;
    return visit->values;
}

std::optional<Shape::Visit> Shape::visitChildren(quint64 object, int depth)
{
    const auto children = references(object);
    if (!children)
        return std::nullopt;
    Visit visit{.values = 1};
    for (const quint64 child : *children) {
        const auto below = valuesBelow(child, depth + 1);
        if (!below)
            return std::nullopt;
        visit.values += *below;
        visit.height = std::max(visit.height, m_visits[child].height + 1);
        if (visit.values > mostValues(m_objects.bytes()))
            return std::nullopt;
    }
    return visit;
}

} // namespace

bool hasBearableShape(const QByteArray& binary)
{
    return Shape(binary).isBounded();
}

} // namespace quindle
