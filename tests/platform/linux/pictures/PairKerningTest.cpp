#include "platform/linux/pictures/PairKerning.h"

#include <vector>

#include <gtest/gtest.h>

namespace quindle {
namespace {

using Words = std::vector<int>;

/// A table of numbers of two bytes each.
TableReader reader(const Words& words)
{
    return [words](std::uint32_t offset) {
        const std::size_t place = offset / 2;
        return place < words.size() ? static_cast<std::uint16_t>(words[place]) : std::uint16_t{0};
    };
}

Words operator+(Words first, const Words& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

constexpr int tag(const char* letters)
{
    return letters[0] << 8 | letters[1];
}

/// A table up to its only lookup, which has one subtable of that type, and begins at byte 56.
Words beginning(const char* script, const char* feature, int type)
{
    return Words{1, 0, 10, 30, 44} +                                          // header
           Words{1, tag(script), tag(script + 2), 8, 4, 0, 0, 0xffff, 1, 0} + // scripts
           Words{1, tag(feature), tag(feature + 2), 8, 0, 1, 0} +             // features
           Words{1, 4, type, 0, 1, 8};                                        // lookups
}

/// Glyph 5 before 7 and 9, and 6 before 7, each with a placement before the advance.
const Words pairs = Words{1, 14, 5, 0, 2, 22, 36} +     // subtable
                    Words{1, 2, 5, 6} +                 // coverage
                    Words{2, 7, 900, -40, 9, 900, 25} + // after 5
                    Words{1, 7, 900, -3};               // after 6

/// Glyphs 5 to 6 are of class 1 on the left, 7 to 8 of class 2 on the right; a row for each of two left
/// classes.
const Words classes = Words{2, 28, 4, 0, 38, 48, 2, 3, 0, 0, 0, 0, 11, -22} + // subtable
                      Words{2, 1, 5, 6, 0} +                                  // coverage
                      Words{1, 5, 2, 1, 1} +                                  // left classes
                      Words{2, 1, 7, 8, 2};                                   // right classes

/// Glyph 1 as the last of a long list.
Words longCoverage()
{
    Words coverage{1, 32000};
    for (int glyph = 0; glyph < 32000; ++glyph)
        coverage.push_back(glyph == 31999 ? 1 : 0);
    return coverage;
}

/// A table up to the subtables of its only lookup, which the feature names 64 times.
Words lookedUpOften(int type, int subtables)
{
    Words table = Words{1, 0, 10, 30, 172} + Words{1, tag("la"), tag("tn"), 8, 4, 0, 0, 0xffff, 1, 0} +
                  Words{1, tag("ke"), tag("rn"), 8, 0, 64};
    table.insert(table.end(), 65, 0);
    return table + Words{1, 4} + Words{type, 0, subtables};
}

TEST(PairKerning, ATableOfAllThatItCanHoldIsNotSearchedWithoutEnd)
{
    Words table = lookedUpOften(2, 256);
    table.insert(table.end(), 256, 518);
    table = table + Words{1, 14, 5, 0, 1, 12, 14} + longCoverage();
    long reads = 0;
    const TableReader read = reader(table);
    const PairKerning kerning([&](std::uint32_t offset) {
        ++reads;
        return read(offset);
    });
    EXPECT_LT(reads, 2000);
    reads = 0;
    EXPECT_EQ(kerning.between(1, 2), 0);
    EXPECT_GT(reads, 1000); // it was searched
    EXPECT_LT(reads, 5000);
}

TEST(PairKerning, ListsThatClaimToBeLongAreReadAsFarAsAFontNeeds)
{
    const Words withoutPairs = lookedUpOften(4, 0xffff);
    for (const Words& table :
         {withoutPairs, Words{1, 0, 10, 30, 44, 0xffff},
          Words{1, 0, 10, 30, 44} + Words{1, tag("la"), tag("tn"), 8, 4, 0, 0, 0xffff, 0xffff}}) {
        long reads = 0;
        const TableReader read = reader(table);
        const PairKerning kerning([&](std::uint32_t offset) {
            ++reads;
            return read(offset);
        });
        EXPECT_GT(reads, 1000); // it was searched
        EXPECT_LT(reads, 50000);
    }
}

TEST(PairKerning, PairsByThemselves)
{
    const PairKerning kerning(reader(beginning("latn", "kern", 2) + pairs));
    EXPECT_EQ(kerning.between(5, 7), -40);
    EXPECT_EQ(kerning.between(5, 9), 25);
    EXPECT_EQ(kerning.between(6, 7), -3);
    EXPECT_EQ(kerning.between(5, 8), 0);
    EXPECT_EQ(kerning.between(6, 9), 0);
    EXPECT_EQ(kerning.between(4, 7), 0);
    EXPECT_EQ(kerning.between(7, 5), 0);
    EXPECT_EQ(kerning.between(5 + 65536, 7), 0);
}

TEST(PairKerning, PairsByClasses)
{
    const PairKerning kerning(reader(beginning("DFLT", "kern", 2) + classes));
    EXPECT_EQ(kerning.between(5, 7), -22);
    EXPECT_EQ(kerning.between(6, 8), -22);
    EXPECT_EQ(kerning.between(6, 9), 0);
    EXPECT_EQ(kerning.between(7, 7), 0);
}

TEST(PairKerning, AnExtensionLeadsToTheSubtable)
{
    const PairKerning kerning(reader(beginning("latn", "kern", 9) + Words{1, 2, 0, 8} + pairs));
    EXPECT_EQ(kerning.between(5, 7), -40);
}

TEST(PairKerning, OtherFeaturesAndScriptsAreNone)
{
    EXPECT_EQ(PairKerning(reader(beginning("latn", "mark", 2) + pairs)).between(5, 7), 0);
    EXPECT_EQ(PairKerning(reader(beginning("arab", "kern", 2) + pairs)).between(5, 7), 0);
    EXPECT_EQ(PairKerning(reader(beginning("latn", "kern", 4) + pairs)).between(5, 7), 0);
    EXPECT_EQ(PairKerning(reader({})).between(5, 7), 0);
}

TEST(PairKerning, ABrokenTableIsReadToItsEnd)
{
    const Words whole = beginning("latn", "kern", 2) + pairs;
    for (std::size_t place = 0; place < whole.size(); ++place) {
        for (const int wrong : {0, 1, 0x7fff, 0xffff}) {
            Words broken = whole;
            broken[place] = wrong;
            const PairKerning kerning(reader(broken));
            for (std::uint32_t left = 4; left < 8; ++left)
                EXPECT_LE(std::abs(kerning.between(left, 7)), 0x10000);
        }
        const PairKerning cut(
            reader(Words(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(place))));
        EXPECT_LE(std::abs(cut.between(5, 7)), 0x10000);
    }
}

} // namespace
} // namespace quindle
