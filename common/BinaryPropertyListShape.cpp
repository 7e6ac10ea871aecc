#include "common/BinaryPropertyListShape.h"

#include <algorithm>
#include <optional>
#include <vector>

#include <QtEndian>

namespace quindle {

namespace {

/// Shared texts and numbers are written out once for each reference, of which there are at most as many as
/// bytes; only containers that share containers go beyond that.
qint64 mostValues(const QByteArray& bytes)
{
    constexpr qint64 enoughForSmallLists = 1'000'000;
    return std::max(enoughForSmallLists, qint64{4} * bytes.size());
}

/// A binary list's objects as a graph of references, of which each object is visited once.
class BinaryGraph
{
public:
    static std::optional<BinaryGraph> read(const QByteArray& bytes);

    bool isBounded() { return valuesBelow(m_top, 1).has_value(); }

private:
    explicit BinaryGraph(const QByteArray& bytes)
        : m_bytes(bytes)
    {
    }

    struct Visit
    {
        qint64 values = 0; ///< 0 before the object was visited, or while it is
        int height = 0;
        bool isOpen = false;
    };

    bool readTrailer();
    std::optional<quint64> number(quint64 offset, int size) const;
    struct Block
    {
        quint64 kind;  ///< the marker's upper half
        quint64 start; ///< of what follows marker and count
        quint64 count;
    };

    std::optional<Block> block(quint64 object) const;
    bool hasNul(quint64 textObject) const;
    std::optional<std::vector<quint64>> references(quint64 object) const;
    std::optional<qint64> valuesBelow(quint64 object, int depth);
    std::optional<Visit> visitChildren(quint64 object, int depth);

    const QByteArray& m_bytes;
    int m_offsetSize = 0;
    int m_referenceSize = 0;
    quint64 m_top = 0;
    quint64 m_table = 0;
    std::vector<Visit> m_visits;
};

std::optional<BinaryGraph> BinaryGraph::read(const QByteArray& bytes)
{
    BinaryGraph graph(bytes);
    if (!graph.readTrailer())
        return std::nullopt;
    return graph;
}

bool BinaryGraph::readTrailer()
{
    constexpr qsizetype headerSize = 8;
    constexpr qsizetype trailerSize = 32;
    if (m_bytes.size() < headerSize + trailerSize)
        return false;
    const char* trailer = m_bytes.constData() + m_bytes.size() - trailerSize;
    m_offsetSize = trailer[6];
    m_referenceSize = trailer[7];
    const auto objects = qFromBigEndian<quint64>(trailer + 8);
    m_top = qFromBigEndian<quint64>(trailer + 16);
    m_table = qFromBigEndian<quint64>(trailer + 24);
    const auto isSize = [](int size) { return size >= 1 && size <= 8; };
    if (!isSize(m_offsetSize) || !isSize(m_referenceSize) || objects > static_cast<quint64>(m_bytes.size()))
        return false;
    m_visits.resize(objects);
    return m_top < objects;
}

std::optional<quint64> BinaryGraph::number(quint64 offset, int size) const
{
    const auto all = static_cast<quint64>(m_bytes.size());
    if (offset > all || all - offset < static_cast<quint64>(size))
        return std::nullopt;
    quint64 value = 0;
    for (int index = 0; index < size; ++index)
        value = value << 8 | static_cast<uchar>(m_bytes[static_cast<qsizetype>(offset) + index]);
    return value;
}

/// Nothing for what lies outside the bytes.
std::optional<BinaryGraph::Block> BinaryGraph::block(quint64 object) const
{
    const auto offset = number(m_table + object * static_cast<quint64>(m_offsetSize), m_offsetSize);
    const auto marker = offset ? number(*offset, 1) : std::nullopt;
    if (!marker)
        return std::nullopt;
    Block found{*marker >> 4, *offset + 1, *marker & 0xf};
    if (found.count != 0xf || found.kind < 4)
        return found;
    // The count is an integer object that follows.
    const auto sizeMarker = number(found.start, 1);
    const int size = sizeMarker ? 1 << (*sizeMarker & 3) : 0;
    const auto longCount = sizeMarker ? number(found.start + 1, size) : std::nullopt;
    if (!longCount || *sizeMarker >> 4 != 1 || *longCount > static_cast<quint64>(m_bytes.size()))
        return std::nullopt;
    return Block{found.kind, found.start + 1 + static_cast<quint64>(size), *longCount};
}

/// True for a text with a NUL inside, which the library takes for a fault of the program where it is a key.
bool BinaryGraph::hasNul(quint64 textObject) const
{
    constexpr quint64 utf16 = 6;
    const auto text = block(textObject);
    const int unit = text && text->kind == utf16 ? 2 : 1;
    for (quint64 index = 0; text && index < text->count; ++index)
        if (number(text->start + index * static_cast<quint64>(unit), unit) == quint64{0})
            return true;
    return false;
}

/// The objects that an array, set or dictionary refers to; none for any other object.
std::optional<std::vector<quint64>> BinaryGraph::references(quint64 object) const
{
    constexpr quint64 firstCollection = 0xa;
    constexpr quint64 dictionary = 0xd;
    const auto own = block(object);
    if (!own || own->count > static_cast<quint64>(m_bytes.size()))
        return std::nullopt;
    if (own->kind < firstCollection)
        return std::vector<quint64>();
    std::vector<quint64> found(own->kind == dictionary ? own->count * 2 : own->count);
    for (std::size_t index = 0; index < found.size(); ++index) {
        const auto target =
            number(own->start + index * static_cast<quint64>(m_referenceSize), m_referenceSize);
        const bool isKey = own->kind == dictionary && index < own->count;
        if (!target || *target >= m_visits.size() || (isKey && hasNul(*target)))
            return std::nullopt;
        found[index] = *target;
    }
    return found;
}

/// Nothing beyond the bounds, for a circle, and for what lies outside the bytes.
std::optional<qint64> BinaryGraph::valuesBelow(quint64 object, int depth)
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

std::optional<BinaryGraph::Visit> BinaryGraph::visitChildren(quint64 object, int depth)
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
        if (visit.values > mostValues(m_bytes))
            return std::nullopt;
    }
    return visit;
}

} // namespace

bool hasBearableShape(const QByteArray& binary)
{
    auto graph = BinaryGraph::read(binary);
    return graph && graph->isBounded();
}

} // namespace quindle
