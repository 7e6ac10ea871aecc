#include "common/PropertyListDepth.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace quindle {

namespace {

constexpr quint64 trailerSize = 32;

/// The tables of a binary list: objects at offsets, containers that hold numbers of objects.
class Objects
{
public:
    explicit Objects(const QByteArray& binary)
        : m_bytes(binary)
    {
    }

    bool readTrailer()
    {
        const auto size = static_cast<quint64>(m_bytes.size());
        if (size < trailerSize)
            return false;
        const quint64 trailer = size - trailerSize;
        m_offsetSize = number(trailer + 6, 1).value_or(0);
        m_referenceSize = number(trailer + 7, 1).value_or(0);
        m_count = number(trailer + 8, 8).value_or(0);
        m_top = number(trailer + 16, 8).value_or(0);
        m_table = number(trailer + 24, 8).value_or(size);
        return isSize(m_offsetSize) && isSize(m_referenceSize) && m_top < m_count && m_table < size &&
               m_count <= (size - m_table) / m_offsetSize;
    }

    quint64 top() const { return m_top; }

    bool isContainer(quint64 object) const
    {
        const auto kind = kindOf(object);
        return kind == array || kind == dictionary;
    }

    /// The objects in a container, keys included; nothing where it leads out of the bytes.
    std::optional<std::vector<quint64>> contents(quint64 container) const
    {
        const quint64 offset = offsetOf(container).value_or(0);
        quint64 start = offset + 1;
        quint64 size = number(offset, 1).value_or(0) & 15;
        if (size == 15) { // the size stands behind the marker as an integer object
            const quint64 sizeBytes = quint64{1} << (number(start, 1).value_or(0) & 15);
            const auto written = isSize(sizeBytes) ? number(start + 1, sizeBytes) : std::nullopt;
            if (!written)
                return std::nullopt;
            size = *written;
            start += 1 + sizeBytes;
        }
        return references(start, size, kindOf(container) == dictionary);
    }

private:
    static constexpr quint64 array = 0xa;
    static constexpr quint64 dictionary = 0xd;

    static bool isSize(quint64 size) { return size >= 1 && size <= 8; }

    std::optional<quint64> offsetOf(quint64 object) const
    {
        return number(m_table + object * m_offsetSize, m_offsetSize);
    }

    std::optional<quint64> kindOf(quint64 object) const
    {
        const auto offset = offsetOf(object);
        const auto marker = offset ? number(*offset, 1) : std::nullopt;
        return marker ? std::optional(*marker >> 4) : std::nullopt;
    }

    std::optional<std::vector<quint64>> references(quint64 start, quint64 size, bool isDictionary) const
    {
        const auto available = static_cast<quint64>(m_bytes.size());
        if (size > available)
            return std::nullopt;
        std::vector<quint64> references;
        for (quint64 index = 0; index < (isDictionary ? 2 * size : size); ++index) {
            const auto reference = number(start + index * m_referenceSize, m_referenceSize);
            if (!reference || *reference >= m_count)
                return std::nullopt;
            references.push_back(*reference);
        }
        return references;
    }

    std::optional<quint64> number(quint64 offset, quint64 size) const
    {
        const auto available = static_cast<quint64>(m_bytes.size());
        if (offset > available || size > available - offset)
            return std::nullopt;
        quint64 value = 0;
        for (quint64 index = 0; index < size; ++index)
            value = (value << 8) | static_cast<uchar>(m_bytes[static_cast<qsizetype>(offset + index)]);
        return value;
    }

    const QByteArray& m_bytes;
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_count = 0;
    quint64 m_top = 0;
    quint64 m_table = 0;
};

/// The objects in all containers of a level, each once.
std::optional<std::vector<quint64>> contentsOfAll(const Objects& objects,
                                                  const std::vector<quint64>& containers)
{
    std::vector<quint64> all;
    for (const quint64 container : containers) {
        const auto contents = objects.contents(container);
        if (!contents)
            return std::nullopt;
        all.insert(all.end(), contents->cbegin(), contents->cend());
    }
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

} // namespace

bool hasBearableDepth(const QByteArray& binary)
{
    Objects objects(binary);
    if (!objects.readTrailer())
        return false;
    // Level by level, each container once a level: without cycles the last level is empty.
    std::vector<quint64> level{objects.top()};
    for (int depth = 0; depth <= mostPropertyListLevels; ++depth) {
        std::erase_if(level, [&](quint64 object) { return !objects.isContainer(object); });
        if (level.empty())
            return true;
        const auto inside = contentsOfAll(objects, level);
        if (!inside)
            return false;
        level = *inside;
    }
    return false;
}

} // namespace quindle
