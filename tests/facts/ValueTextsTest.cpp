#include "facts/ValueTexts.h"

#include <limits>

#include <gtest/gtest.h>

#include <QLocale>

#include "tests/support/NotFinite.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/TestTranslation.h"

using namespace quindle;

namespace {

TEST(ValueTexts, FiguresHaveOneDecimal)
{
    EXPECT_EQ(figureText(66.666), QStringLiteral("66.7"));
    EXPECT_EQ(percentText(83.916), QStringLiteral("83.9 %"));
    EXPECT_EQ(percentText(87.25), QStringLiteral("87.2 %"));
    EXPECT_EQ(percentText(0), QStringLiteral("0.0 %"));
    EXPECT_EQ(wattsText(4.61), QStringLiteral("4.6 W"));
}

TEST(ValueTexts, WhatIsNotFiniteIsNotKnown)
{
    for (const double number : {notANumber, infinity, -infinity}) {
        EXPECT_EQ(figureText(number), QString());
        EXPECT_EQ(percentText(number), QString());
        EXPECT_EQ(wattsText(number), QString());
    }
}

TEST(ValueTexts, CountsBeginAtOne)
{
    EXPECT_EQ(countText(1293, FactPlace::View), QStringLiteral("1,293"));
    EXPECT_EQ(countText(1293, FactPlace::Report), QStringLiteral("1293"));
    EXPECT_EQ(countText(0, FactPlace::View), QString());
    EXPECT_EQ(countText(-1, FactPlace::Menu), QString());
}

struct CapacityCase
{
    qint64 held;
    qint64 room;
    const char16_t* onScreen;
    const char16_t* inReport;
};

TEST(ValueTexts, Capacities)
{
    const CapacityCase cases[]{
        {4000, 6000, u"4,000 of 6,000 mAh", u"4000 mAh of 6000 mAh"},
        {4000, 0, u"4,000 mAh", u"4000 mAh"},
        {0, 6000, u"– of 6,000 mAh", u""},
        {0, 0, u"", u""},
        {-3, -3, u"", u""},
    };
    for (const CapacityCase& row : cases) {
        EXPECT_EQ(capacitiesText(row.held, row.room, {FactPlace::View}), QString::fromUtf16(row.onScreen));
        EXPECT_EQ(capacitiesText(row.held, row.room, {FactPlace::Report}), QString::fromUtf16(row.inReport));
    }
}

TEST(ValueTexts, BlanksAreNoText)
{
    EXPECT_EQ(knownText(QStringLiteral("Simplo ")), QStringLiteral("Simplo "));
    EXPECT_EQ(knownText(QStringLiteral(" \t")), QString());
    EXPECT_EQ(knownText(std::nullopt), QString());
}

TEST(ValueTexts, Groups)
{
    const std::pair<qint64, const char*> cases[]{
        {0, "0"},
        {999, "999"},
        {1000, "1,000"},
        {-999, "-999"},
        {-1600, "-1,600"},
        {-123456, "-123,456"},
        {1234567, "1,234,567"},
        {std::numeric_limits<qint64>::min(), "-9,223,372,036,854,775,808"},
    };
    for (const auto& [number, text] : cases)
        EXPECT_EQ(groupedText(number, QStringLiteral(",")), QString::fromLatin1(text));
}

TEST(ValueTexts, PointNeverSeparatesGroups)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(countText(6000, FactPlace::View), QStringLiteral(u"6\u202F000"));
    EXPECT_EQ(countText(6000, FactPlace::Report), QStringLiteral("6000"));
    QLocale::setDefault(QLocale::c());
}

TEST(ValueTexts, JoinsWhatIsThere)
{
    const QString one = QStringLiteral("one");
    const QString two = QStringLiteral("two");
    EXPECT_EQ(besideEachOther(one, two), QStringLiteral(u"one \u00B7 two"));
    EXPECT_EQ(besideEachOther(one, QString()), one);
    EXPECT_EQ(besideEachOther(QString(), two), two);
    const TestTranslation arabic(QStringLiteral("C"), QStringLiteral("ar_LY"));
    EXPECT_EQ(besideEachOther(one, two), QStringLiteral(u"\u200F\u2068one\u2069 \u00B7 \u2068two\u2069"));
    EXPECT_EQ(besideEachOther(one, QString()), one);
}

} // namespace
