#include "common/ShownLanguage.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "common/Translation.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

const QString builtTranslations = latin(QUINDLE_TEST_TRANSLATIONS);

QString shownIn(const QStringList& languages, const QString& folder = builtTranslations)
{
    const ShownLanguage language(folder, languages);
    return language.name() + u':' + translated("Facts", "Chargin with");
}

TEST(ShownLanguageTest, IsTheBestThatThereIsATranslationFor)
{
    EXPECT_EQ(shownIn({latin("de-CH")}), u("de:Lädt mit"));
    EXPECT_EQ(shownIn({latin("eo"), latin("de")}), u("de:Lädt mit"));
}

TEST(ShownLanguageTest, IsEnglishAsTheTextsAreOtherwise)
{
    for (const QStringList& languages : {QStringList{}, QStringList{latin("C")},
                                         QStringList{latin("en-US"), latin("de")}, QStringList{latin("eo")}})
        EXPECT_EQ(shownIn(languages), latin(":Chargin with"));
}

TEST(ShownLanguageTest, EndsWithTheObject)
{
    shownIn({latin("de")});
    EXPECT_EQ(translated("Facts", "Chargin with"), latin("Chargin with"));
}

TEST(ShownLanguageTest, IsEnglishWhereTheFileIsMissingOrDamaged)
{
    const QTemporaryDir folder;
    EXPECT_EQ(shownIn({latin("de")}, folder.path()), latin(":Chargin with"));
    QFile damaged(folder.filePath(latin("quindle_de.qm")));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("damaged");
    damaged.close();
    EXPECT_EQ(shownIn({latin("de")}, folder.path()), latin(":Chargin with"));
}

TEST(ShownLanguageTest, HasPluralFormsByTheLastDigitsOfLargeNumbers)
{
    const ShownLanguage language(builtTranslations, {latin("de")});
    const auto days = [](qint64 count) { return translated("Facts", "%1 days", "age", count).arg(count); };
    EXPECT_EQ(days(1), latin("1 Tag"));
    EXPECT_EQ(days(-1), latin("-1 Tag"));
    EXPECT_EQ(days(5'000'000'000), latin("5000000000 Tage"));
    EXPECT_EQ(withDecimalSign(latin("66.7")), latin("66,7"));
}

TEST(ShownLanguageTest, LeavesEnglishNumbersAlone)
{
    EXPECT_EQ(translated("Facts", "%1 days", "age", 1).arg(1), latin("1 days"));
    EXPECT_EQ(withDecimalSign(latin("66.7")), latin("66.7"));
}

TEST(ShownLanguageTest, DatesHaveTheDigitsOfTheTitle)
{
    EXPECT_EQ(withAsciiDigits(u("\u0661\u0662:\u06F3\u06F9")), latin("12:39"));
    EXPECT_EQ(withAsciiDigits(u("2025\u5E74\u00B2")), u("2025\u5E74\u00B2")) << "not a digit of a number";
}

} // namespace
