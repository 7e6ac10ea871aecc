#include "platform/linux/pictures/ShapingNeed.h"

#include <gtest/gtest.h>

namespace quindle {
namespace {

TEST(NeedsShaping, DependsOnScriptOrderAndAccents)
{
    struct Row
    {
        const char32_t* text;
        bool isNeeded;
    };
    constexpr Row rows[] = {
        {U"", false},
        {U"87.0% 3:21 −12.5 W ⚡ °C ½ … “x”", false},
        {U"Größe Ωμέγα Ёлка Հայ ქართ ኢትዮ", false},
        {U"日本語 かな カナ 한국어 ㄅㄆ", false},
        {U"☀\ufe0f ❤", false},
        {U"😀🔋", false},
        {U"\u200b\u2060x", false},
        {U"שלום", true},
        {U"مرحبا", true},
        {U"ܫܠܡ", true},
        {U"١٢", true},
        {U"नमस्ते", true},
        {U"বাংলা", true},
        {U"தமிழ்", true},
        {U"ไทย", true},
        {U"မြန်မာ", true},
        {U"ខ្មែរ", true},
        {U"ᠮᠣᠩᠭᠣᠯ", true},
        {U"བོད", true},
        {U"한", true},
        {U"x\u0301", true},
        {U"\u202e87%", true},
        {U"\u206787%", true},
        {U"👩\u200d💻", true},
        {U"👍🏽", true},
        {U"🇩🇪", true},
        {U"1\u20e3", true},
    };
    for (const Row& row : rows)
        EXPECT_EQ(needsShaping(row.text), row.isNeeded) << QString::fromUcs4(row.text).toStdString();
}

TEST(DrawnCharacters, AreComposedAndVisible)
{
    struct Row
    {
        const char16_t* text;
        const char32_t* drawn;
    };
    constexpr Row rows[] = {
        {u"", U""},
        {u"87%", U"87%"},
        {u"e\u0301", U"é"},
        {u"a\u0000b\u001b\u0085c", U"a"}, // ends at its first NUL
        {u"a\tb\u001b\u0085c", U"abc"},
        {u"a\u200b\u00ad\ufeffb", U"ab"},
        {u"☀\ufe0f", U"☀"},
        {u"\u202e87%", U"\u202e87%"},
        {u"😀", U"😀"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(drawnCharacters(QString::fromUtf16(row.text)), row.drawn);
}

TEST(DrawnCharacters, HalfACharacterIsAReplacementAndEndlessTextsEnd)
{
    EXPECT_EQ(drawnCharacters(QString(QChar(0xd83d))), U"\ufffd");
    EXPECT_EQ(drawnCharacters(QString(QChar::Null) + u'x'), U"x");
    EXPECT_EQ(drawnCharacters(QString(100'000, u'W')).size(), 1000U);
}

} // namespace
} // namespace quindle
