#include <gtest/gtest.h>

#include "common/ValueDescription.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

using namespace quindle;

namespace {

TEST(NumberDescription, Table)
{
    const struct
    {
        QVariant number;
        QString text;
    } rows[] = {
        {true, QStringLiteral("1")},
        {false, QStringLiteral("0")},
        {QVariant::fromValue(qint64{-1600}), QStringLiteral("-1600")},
        {QVariant::fromValue(qint64{58481155946291}), QStringLiteral("58481155946291")},
        {60.0, QStringLiteral("60")},
        {61.5, QStringLiteral("61.5")},
        {0.1, QStringLiteral("0.1")},
        {100000.0, QStringLiteral("100000")},
        {1.0 / 3.0, QStringLiteral("0.3333333333333333")},
        {28.999999999999996, QStringLiteral("28.999999999999996")},
        {1e300, QStringLiteral("1e+300")},
        {1.0 / 0.0, QStringLiteral("inf")},
        {QStringLiteral("60"), QString()},
        {QVariant(), QString()},
    };
    for (const auto& row : rows)
        EXPECT_EQ(numberDescription(row.number), row.text);
}

TEST(ValueDescription, PlainValues)
{
    const ScopedTimeZone zone("Europe/Berlin");
    EXPECT_EQ(valueDescription(QStringLiteral("as it \"is\"")), QStringLiteral("as it \"is\""));
    EXPECT_EQ(valueDescription(2.0), QStringLiteral("2"));
    EXPECT_EQ(valueDescription(QByteArray("\x0a\x0b")), QStringLiteral("<0a0b>"));
    EXPECT_EQ(valueDescription(QByteArray("\x01\x02\x03\x04\x05")), QStringLiteral("<01020304 05>"));
    EXPECT_EQ(valueDescription(QByteArray()), QStringLiteral("<>"));
    EXPECT_EQ(valueDescription(QDateTime(QDate(2014, 3, 2), QTime(1, 0))),
              QStringLiteral("2014-03-02 00:00:00 +0000"));
    EXPECT_EQ(valueDescription(QVariant()), QString());
}

TEST(ValueDescription, Lists)
{
    EXPECT_EQ(valueDescription(QVariantList{1, 2}), QStringLiteral("(\n    1,\n    2\n)"));
    EXPECT_EQ(valueDescription(QVariantList{true, false}), QStringLiteral("(\n    1,\n    0\n)"));
    EXPECT_EQ(valueDescription(QVariantList()), QStringLiteral("(\n)"));
    EXPECT_EQ(valueDescription(QVariantList{QVariant(QVariantList{3})}),
              QStringLiteral("(\n        (\n        3\n    )\n)"));
}

TEST(ValueDescription, Dictionaries)
{
    const QVariantMap map{{QStringLiteral("b"), QStringLiteral("two words")},
                          {QStringLiteral("a"), 1.5},
                          {QStringLiteral("a-c"), QVariantMap{{QStringLiteral("k"), QByteArray("\xff")}}}};
    EXPECT_EQ(valueDescription(map), QStringLiteral("{\n"
                                                    "    a = \"1.5\";\n"
                                                    "    \"a-c\" =     {\n"
                                                    "        k = <ff>;\n"
                                                    "    };\n"
                                                    "    b = \"two words\";\n"
                                                    "}"));
    EXPECT_EQ(valueDescription(QVariantMap()), QStringLiteral("{\n}"));
}

TEST(ValueDescription, TextsInsideContainersAreQuotedAndEscaped)
{
    const struct
    {
        QString text;
        QString described;
    } rows[] = {
        {QStringLiteral("Good"), QStringLiteral("Good")},
        {QStringLiteral(""), QStringLiteral("\"\"")},
        {QStringLiteral("a\"b\\c"), QStringLiteral("\"a\\\"b\\\\c\"")},
        {QStringLiteral("a\n\t"), QStringLiteral("\"a\\n\\t\"")},
        {QStringLiteral("é"), QStringLiteral("\"\\U00e9\"")},
    };
    for (const auto& row : rows)
        EXPECT_EQ(valueDescription(QVariantList{row.text}),
                  QStringLiteral("(\n    ") + row.described + QStringLiteral("\n)"));
}

} // namespace
