#include "platform/linux/pictures/Eliding.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

namespace quindle {
namespace {

/// Ten pixels for each unit, but none for a combining accent.
double width(const QString& text)
{
    return 10.0 * static_cast<double>(text.size() - text.count(QChar(0x301)));
}

TEST(ElidedTo, IsTheLongestBeginningThatFits)
{
    struct Row
    {
        const char* text;
        double width;
        const char* elided;
    };
    constexpr Row rows[] = {
        {"", 0, ""},           {"abc", 30, "abc"},
        {"abc", 29.9, "a…"},   {"abcdef", 40, "abc…"},
        {"abcdef", 10, "…"},   {"abcdef", 0, "…"},
        {"abcdef", -100, "…"}, {"e\u0301e\u0301e\u0301", 20, "e\u0301…"},
        {"😀😀😀", 50, "😀😀…"},    {"😀😀😀", 40, "😀…"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(elidedTo(QString::fromUtf8(row.text), row.width, width), QString::fromUtf8(row.elided))
            << row.text << " in " << row.width;
}

TEST(ElidedTo, AnEndlessTextIsMeasuredAFewTimesOnly)
{
    int measured = 0;
    const QString text = elidedTo(QString(1'000'000, u'W'), 800.0, [&measured](const QString& part) {
        ++measured;
        EXPECT_LE(part.size(), 1001);
        return width(part);
    });
    EXPECT_EQ(text, QString(79, u'W') + QChar(0x2026));
    EXPECT_LT(measured, 15);
}

} // namespace
} // namespace quindle
