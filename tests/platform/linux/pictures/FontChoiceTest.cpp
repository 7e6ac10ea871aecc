#include "platform/linux/pictures/FontChoice.h"

#include <QFile>
#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

TEST(FamilyOfFontName, IsWithoutStyleAndSize)
{
    struct Row
    {
        const char* name;
        const char* family;
    };
    constexpr Row rows[] = {
        {"Cantarell 11", "Cantarell"},
        {"Sans 10", "Sans"},
        {"Ubuntu Sans Medium 11", "Ubuntu Sans"},
        {"Noto Sans Semi-Bold Italic 10.5", "Noto Sans"},
        {"Noto Sans, 10", "Noto Sans"},
        {"Noto Sans, Helvetica Bold 10", "Noto Sans"},
        {"DejaVu Sans Condensed 9px", "DejaVu Sans"},
        {"Source Sans 3", "Source Sans"}, // as the desktops' own library reads it; a size follows mostly:
        {"Source Sans 3 11", "Source Sans 3"},
        {"Bold", "Bold"},
        {"BOLD 12", "BOLD"},
        {"  Sans   10  ", "Sans"},
        {"", ""},
        {"11", ""},
        {",", ""},
        {"日本 フォント 12", "日本 フォント"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(familyOfFontName(QString::fromUtf8(row.name)), QString::fromUtf8(row.family)) << row.name;
}

TEST(FontChoice, EveryFamilyHasAFontOrOneThatStandsIn)
{
    const FontChoice choice;
    for (const QString& family : {QString(), QStringLiteral("DejaVu Sans"), QStringLiteral("no such family"),
                                  QString(100'000, u'x'), QStringLiteral("a:b-12,c=%\n")}) {
        const auto font = choice.font(family);
        ASSERT_TRUE(font) << family.left(20).toStdString();
        EXPECT_TRUE(QFile::exists(QString::fromUtf8(font->path)));
    }
}

TEST(FontChoice, TheFontIsDemiBoldOrTheNextHeavier)
{
    const auto font = FontChoice().font(QStringLiteral("DejaVu Sans"));
    ASSERT_TRUE(font);
    EXPECT_TRUE(font->path.endsWith("/DejaVuSans-Bold.ttf")) << font->path.constData();
}

TEST(FontChoice, ACharacterDecidesBeforeTheFamily)
{
    const FontChoice choice;
    const auto font = choice.font(QStringLiteral("Noto Sans"), U'\u26a1');
    ASSERT_TRUE(font);
    EXPECT_NE(*font, choice.font(QStringLiteral("Noto Sans")));
    EXPECT_FALSE(choice.font({}, U'\U0010fffe')) << "no font has that";
}

} // namespace
} // namespace quindle
