#include "common/Translation.h"

#include <gtest/gtest.h>

#include <QLocale>

#include "tests/support/QtPrinters.h"
#include "tests/support/TestTranslation.h"

using namespace quindle;

namespace {

TEST(Translation, WithoutALanguageTextsStayAsTheyAre)
{
    EXPECT_EQ(shownLocale(), QLocale::c());
    EXPECT_EQ(withDecimalSign(QStringLiteral("10.6")), QStringLiteral("10.6"));
    EXPECT_EQ(isolatedText(QStringLiteral("10.6 W")), QStringLiteral("10.6 W"));
}

TEST(Translation, FromLeftToRightNoTextIsIsolated)
{
    const TestTranslation german(QStringLiteral("C"), QStringLiteral("de_DE"));
    EXPECT_EQ(shownLocale(), QLocale(QStringLiteral("de_DE")));
    EXPECT_EQ(isolatedText(QStringLiteral("10,6 W")), QStringLiteral("10,6 W"));
}

TEST(Translation, FromRightToLeftTextsAreIsolated)
{
    const TestTranslation arabic(QStringLiteral("C"), QStringLiteral("ar_LY"));
    EXPECT_EQ(isolatedText(QStringLiteral("10.6 W")), QStringLiteral(u"\u206810.6 W\u2069"));
    EXPECT_EQ(isolatedText({}), QString());
}

} // namespace
