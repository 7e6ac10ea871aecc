#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace quindle {

/// Gives the two bytes at an offset of a font's table, the high one first; 0 beyond the table's end.
using TableReader = std::function<std::uint16_t(std::uint32_t offset)>;

/// The space between pairs of glyphs as a font's GPOS table has it, which is the only place in most of
/// today's fonts. The table may hold any bytes: nonsense gives no kerning.
class PairKerning
{
public:
    /// Finds the table's kerning for Latin letters, which is that of most other scripts without shaping too.
    explicit PairKerning(TableReader table);

    /// What is added to the left glyph's advance, in the font's units; mostly negative or 0.
    int between(std::uint32_t left, std::uint32_t right) const;

private:
    struct Pair
    {
        std::uint16_t left = 0;
        std::uint16_t right = 0;
    };

    struct Subtable
    {
        std::uint32_t offset = 0;
        std::size_t lookup = 0; ///< only the first subtable of a lookup that knows the pair counts
    };

    /// The row of a list of records that has the tag; 0 for none.
    std::uint32_t tagged(std::uint32_t list, std::uint32_t tag) const;
    std::uint32_t languageOf(std::uint32_t scripts) const;
    void addLookup(std::uint32_t lookup);
    bool adjust(std::uint32_t subtable, Pair pair, int& units) const;
    bool adjustByPairs(std::uint32_t subtable, std::uint32_t index, Pair pair, int& units) const;
    bool adjustByClasses(std::uint32_t subtable, Pair pair, int& units) const;
    int advanceIn(std::uint32_t record, std::uint16_t format) const;
    std::int64_t coverageIndex(std::uint32_t coverage, std::uint16_t glyph) const;
    std::uint16_t classOf(std::uint32_t classes, std::uint16_t glyph) const;

    TableReader m_table;
    std::vector<Subtable> m_subtables;
};

} // namespace quindle
