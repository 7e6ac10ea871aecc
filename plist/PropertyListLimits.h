#pragma once

#include <algorithm>

#include <QtGlobal>

namespace quindle {

/// How deep arrays and dictionaries may be nested. Readers, writers and destructors recurse, so a deeper list
/// would overflow the stack.
inline constexpr int mostPropertyListLevels = 512;

/// The size of a value as a tree, with everything that it shares with others written out.
struct Extent
{
    quint64 weight = 1; ///< itself and the values inside
    int height = 0;     ///< of arrays and dictionaries in each other
};

/// What a value of that many characters or bytes weighs beyond 1.
constexpr quint64 weightOfContent(quint64 count)
{
    return count / 16;
}

/// How much may be read from a list of so many bytes, whatever it contains. Time and memory stay in
/// proportion to that size.
class PropertyListLimits
{
public:
    explicit PropertyListLimits(quint64 size)
        : m_left(size + quint64{64} * 1024)
        , m_mostUnfolded(std::min(64 * size, 64 * million) + 4 * million)
    {
    }

    /// False once more was read than a list can hold. Honest ones hold less than one value a byte; the margin
    /// is for small archives whose objects share their lists of keys.
    bool spend(quint64 values)
    {
        const bool isThere = values <= m_left;
        m_left -= isThere ? values : m_left;
        return isThere;
    }

    /// Puts a value into an array or dictionary. False when that becomes too deep, or unfolds to more than a
    /// lifetime of records that are all the same: lists can be made to unfold without end.
    bool put(const Extent& part, Extent& whole) const
    {
        whole.weight += part.weight;
        whole.height = std::max(whole.height, part.height + 1);
        return whole.weight <= m_mostUnfolded && whole.height <= mostPropertyListLevels;
    }

private:
    static constexpr quint64 million = quint64{1024} * 1024;

    quint64 m_left;
    quint64 m_mostUnfolded;
};

} // namespace quindle
