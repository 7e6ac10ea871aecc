#include "platform/linux/pictures/PairKerning.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace quindle {

namespace {

constexpr std::uint32_t tagOf(const char (&letters)[5])
{
    std::uint32_t tag = 0;
    for (int i = 0; i < 4; ++i)
        tag = tag << 8U | static_cast<unsigned char>(letters[i]);
    return tag;
}

// Fonts have a handful of each; a broken one may claim any number, and each subtable is searched for every
// pair of a title.
constexpr std::uint32_t mostRecords = 1024; ///< scripts, or features of a language
constexpr std::uint32_t mostLookups = 64;
constexpr std::uint32_t mostSubtablesOfOne = 256; ///< of one lookup
constexpr std::size_t mostSubtables = 128;        ///< of all lookups

constexpr std::uint16_t pairAdjustment = 2;
constexpr std::uint16_t extension = 9;
constexpr std::uint16_t xAdvance = 4; ///< the bit of a value's format; those before it are two placements

std::uint32_t atMost(std::uint32_t most, std::uint16_t claimed)
{
    return std::min<std::uint32_t>(most, claimed);
}

std::uint32_t bytesOf(std::uint16_t format)
{
    return 2U * static_cast<std::uint32_t>(std::popcount(format));
}

/// Of `count` records sorted by glyph, the number of the last that does not begin after it; -1 for none.
template <typename FirstGlyph>
int lastNotAfter(int count, std::uint16_t glyph, const FirstGlyph& firstGlyph)
{
    int low = 0;
    int high = count;
    while (low < high) {
        const int middle = (low + high) / 2;
        if (firstGlyph(static_cast<std::uint32_t>(middle)) <= glyph)
            low = middle + 1;
        else
            high = middle;
    }
    return low - 1;
}

} // namespace

PairKerning::PairKerning(TableReader table)
    : m_table(std::move(table))
{
    // After the version, the table begins with the offsets of three lists.
    const std::uint32_t scripts = m_table(4);
    const std::uint32_t features = m_table(6);
    const std::uint32_t lookups = m_table(8);
    const std::uint32_t language = languageOf(scripts);
    if (m_table(0) != 1 || language == 0)
        return;
    // A language names its features by their places in the list, which has a tag and an offset for each.
    const std::uint32_t featureCount = atMost(mostRecords, m_table(language + 4));
    for (std::uint32_t i = 0; i < featureCount; ++i) {
        const std::uint32_t record = features + 2 + 6 * m_table(language + 6 + 2 * i);
        const std::uint32_t tag = std::uint32_t{m_table(record)} << 16U | m_table(record + 2);
        // Other features are for marks, or for the user to choose.
        if (tag != tagOf("kern"))
            continue;
        const std::uint32_t feature = features + m_table(record + 4);
        const std::uint32_t count = atMost(mostLookups, m_table(feature + 2));
        for (std::uint32_t n = 0; n < count; ++n)
            addLookup(lookups + m_table(lookups + 2 + 2 * m_table(feature + 4 + 2 * n)));
        return;
    }
}

std::uint32_t PairKerning::tagged(std::uint32_t list, std::uint32_t tag) const
{
    const std::uint32_t count = atMost(mostRecords, m_table(list));
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t record = list + 2 + 6 * i;
        if ((std::uint32_t{m_table(record)} << 16U | m_table(record + 2)) == tag)
            return list + m_table(record + 4);
    }
    return 0;
}

std::uint32_t PairKerning::languageOf(std::uint32_t scripts) const
{
    // Titles are digits and Latin letters for the most part.
    for (const std::uint32_t tag : {tagOf("latn"), tagOf("DFLT")}) {
        const std::uint32_t script = tagged(scripts, tag);
        // The default language of a script, where it has one.
        if (script != 0 && m_table(script) != 0)
            return script + m_table(script);
    }
    return 0;
}

void PairKerning::addLookup(std::uint32_t lookup)
{
    const std::size_t number = m_subtables.empty() ? 0 : m_subtables.back().lookup + 1;
    const std::uint32_t count = atMost(mostSubtablesOfOne, m_table(lookup + 4));
    for (std::uint32_t i = 0; i < count && m_subtables.size() < mostSubtables; ++i) {
        std::uint32_t subtable = lookup + m_table(lookup + 6 + 2 * i);
        std::uint16_t type = m_table(lookup);
        // A subtable too far away for 16 bits is reached through one that holds its type and 32 bits.
        if (type == extension) {
            type = m_table(subtable + 2);
            subtable += std::uint32_t{m_table(subtable + 4)} << 16U | m_table(subtable + 6);
        }
        if (type == pairAdjustment)
            m_subtables.push_back({subtable, number});
    }
}

int PairKerning::between(std::uint32_t left, std::uint32_t right) const
{
    constexpr std::uint32_t most = std::numeric_limits<std::uint16_t>::max();
    // The table numbers glyphs in 16 bits.
    if (left > most || right > most)
        return 0;
    const Pair pair{static_cast<std::uint16_t>(left), static_cast<std::uint16_t>(right)};
    int sum = 0;
    constexpr std::size_t none = std::numeric_limits<std::size_t>::max();
    std::size_t done = none;
    for (const Subtable& subtable : m_subtables) {
        int units = 0;
        // Only the first of a lookup's subtables that knows the pair counts.
        if (subtable.lookup == done || !adjust(subtable.offset, pair, units))
            continue;
        sum += units;
        done = subtable.lookup;
    }
    return sum;
}

bool PairKerning::adjust(std::uint32_t subtable, Pair pair, int& units) const
{
    const std::int64_t index = coverageIndex(subtable + m_table(subtable + 2), pair.left);
    if (index < 0)
        return false;
    if (m_table(subtable) == 1)
        return adjustByPairs(subtable, static_cast<std::uint32_t>(index), pair, units);
    return m_table(subtable) == 2 && adjustByClasses(subtable, pair, units);
}

bool PairKerning::adjustByPairs(std::uint32_t subtable, std::uint32_t index, Pair pair, int& units) const
{
    if (index >= m_table(subtable + 8))
        return false;
    const std::uint16_t format = m_table(subtable + 4);
    const std::uint32_t size = 2 + bytesOf(format) + bytesOf(m_table(subtable + 6));
    const std::uint32_t pairs = subtable + m_table(subtable + 10 + 2 * index);
    const int found = lastNotAfter(m_table(pairs), pair.right,
                                   [&](std::uint32_t n) { return m_table(pairs + 2 + n * size); });
    const std::uint32_t record = pairs + 2 + static_cast<std::uint32_t>(std::max(found, 0)) * size;
    if (found < 0 || m_table(record) != pair.right)
        return false;
    units = advanceIn(record + 2, format);
    return true;
}

bool PairKerning::adjustByClasses(std::uint32_t subtable, Pair pair, int& units) const
{
    const std::uint16_t format = m_table(subtable + 4);
    const std::uint32_t size = bytesOf(format) + bytesOf(m_table(subtable + 6));
    const std::uint32_t left = classOf(subtable + m_table(subtable + 8), pair.left);
    const std::uint32_t right = classOf(subtable + m_table(subtable + 10), pair.right);
    const std::uint32_t rightCount = m_table(subtable + 14);
    if (left >= m_table(subtable + 12) || right >= rightCount)
        return false;
    units = advanceIn(subtable + 16 + (left * rightCount + right) * size, format);
    return true;
}

int PairKerning::advanceIn(std::uint32_t record, std::uint16_t format) const
{
    if ((format & xAdvance) == 0)
        return 0;
    // A value has a field for each bit of its format, in order; those before the advance are skipped.
    return static_cast<std::int16_t>(m_table(record + bytesOf(format & (xAdvance - 1U))));
}

std::int64_t PairKerning::coverageIndex(std::uint32_t coverage, std::uint16_t glyph) const
{
    const bool hasRanges = m_table(coverage) == 2;
    if (!hasRanges && m_table(coverage) != 1)
        return -1;
    // Either single glyphs, or ranges: the first glyph, the last one, and the index of the first.
    const std::uint32_t size = hasRanges ? 6 : 2;
    const int found = lastNotAfter(m_table(coverage + 2), glyph,
                                   [&](std::uint32_t n) { return m_table(coverage + 4 + n * size); });
    if (found < 0)
        return -1;
    const std::uint32_t record = coverage + 4 + static_cast<std::uint32_t>(found) * size;
    const std::uint16_t first = m_table(record);
    if (!hasRanges)
        return first == glyph ? found : -1;
    return glyph <= m_table(record + 2) ? m_table(record + 4) + (glyph - first) : -1;
}

std::uint16_t PairKerning::classOf(std::uint32_t classes, std::uint16_t glyph) const
{
    // Either a class for each glyph from a first one on, or ranges with a class each. All other glyphs are of
    // class 0.
    if (m_table(classes) == 1) {
        const int place = glyph - m_table(classes + 2);
        const bool isListed = place >= 0 && place < m_table(classes + 4);
        return isListed ? m_table(classes + 6 + 2 * static_cast<std::uint32_t>(place)) : std::uint16_t{0};
    }
    if (m_table(classes) != 2)
        return 0;
    const int found = lastNotAfter(m_table(classes + 2), glyph,
                                   [&](std::uint32_t n) { return m_table(classes + 4 + n * 6); });
    const std::uint32_t record = classes + 4 + static_cast<std::uint32_t>(std::max(found, 0)) * 6;
    return found >= 0 && glyph <= m_table(record + 2) ? m_table(record + 4) : std::uint16_t{0};
}

} // namespace quindle
