#include "common/SingleLine.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

namespace quindle {
namespace {

TEST(SingleLine, controlCharactersBecomeBlanks)
{
    EXPECT_EQ(singleLine(u("a\nb\r\tc\x01")), u("a b  c "));
    EXPECT_EQ(singleLine(u("a\u2028b\u2029c\u0085d")), u("a b c d"));
    EXPECT_EQ(singleLine(u("87.0% é ⚡ עברית")), u("87.0% é ⚡ עברית"));
    EXPECT_EQ(singleLine({}), QString());
}

TEST(Elided, keepsWhatFits)
{
    EXPECT_EQ(elided(u("abcde"), 5), u("abcde"));
    EXPECT_EQ(elided({}, 5), QString());
    // Five characters for a person, more units in memory.
    EXPECT_EQ(elided(u("😀😀😀😀😀"), 5), u("😀😀😀😀😀"));
    EXPECT_EQ(elided(u("ée\u0301ée\u0301é"), 5), u("ée\u0301ée\u0301é"));
}

TEST(Elided, cutsBetweenCharacters)
{
    EXPECT_EQ(elided(u("abcdef"), 5), u("abcd…"));
    EXPECT_EQ(elided(u("😀😀😀😀😀😀"), 5), u("😀😀😀😀…"));
    EXPECT_EQ(elided(u("abce\u0301ef"), 5), u("abce\u0301…"));
    EXPECT_EQ(elided(u("👩‍👩‍👧👩‍👩‍👧👩‍👩‍👧"), 2),
              u("👩‍👩‍👧…"));
}

TEST(Elided, longTextsAreBounded)
{
    EXPECT_EQ(elided(QString(10000, QLatin1Char('x')), 60).size(), 60);
    const QString marks = u("a") + QString(10000, QChar(0x0301));
    EXPECT_LE(elided(marks, 60).size(), 60 * 8 + 1);
    EXPECT_TRUE(elided(marks, 60).endsWith(u("…")));
}

} // namespace
} // namespace quindle
