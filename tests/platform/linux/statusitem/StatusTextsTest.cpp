#include "platform/linux/statusitem/StatusTexts.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

namespace quindle {
namespace {

TEST(BusText, carriesEverythingButNul)
{
    EXPECT_EQ(busText(u("a\nb<&>😀")), u("a\nb<&>😀"));
    EXPECT_EQ(busText(QString::fromLatin1("a\0b", 3)), u("a\ufffdb"));
}

TEST(EscapedMarkup, markupIsLiteral)
{
    EXPECT_EQ(escapedMarkup(u("<b>R&D</b> \"x\"")), u("&lt;b&gt;R&amp;D&lt;/b&gt; &quot;x&quot;"));
}

TEST(LiteralPanelToolTip, plainTextStaysAndWhatLooksLikeMarkupIsEscaped)
{
    EXPECT_EQ(literalPanelToolTip(u("87.0%\nR&D > 3")), u("87.0%\nR&D > 3"));
    EXPECT_EQ(literalPanelToolTip(u("<b>R&D</b>\na  b")),
              u("<p>&lt;b&gt;R&amp;D&lt;/b&gt;<br>a\u00a0\u00a0b</p>"));
    EXPECT_EQ(literalPanelToolTip(u("a &lt; b")), u("<p>a\u00a0&amp;lt;\u00a0b</p>"));
}

TEST(MenuLabel, mnemonicsAreLiteralAndTheTabBecomesAColon)
{
    EXPECT_EQ(menuLabel(u("a_b__c & d")), u("a__b____c & d"));
    EXPECT_EQ(menuLabel(u("Health\t93.4%")), u("Health: 93.4%"));
    EXPECT_EQ(menuLabel(u("a\nb\tc\td")), u("a b: c d"));
    EXPECT_EQ(menuLabel(QString(10000, QLatin1Char('x'))).size(), 100);
    EXPECT_EQ(menuLabel(u("a_b\nc\td\te"), true), u("a__b c\td e"));
}

} // namespace
} // namespace quindle
