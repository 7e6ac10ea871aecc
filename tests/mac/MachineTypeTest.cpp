#include "mac/MachineType.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct FragmentRow
{
    const char* text;
    const char* name;
};

TEST(MachineType, Table)
{
    constexpr FragmentRow rows[] = {
        {"MacBookPro14,1", "MacBook Pro"},
        {"MacBookAir7,2", "MacBook Air"},
        {"XMacBookAirY", "MacBook Air"},
        {"iMac15,1", "iMac"},
        {"iMacPro1,1", "iMac"},
        {"Macmini6,2", "Mac mini"},
        {"MacPro6,1", "Mac Pro"},
        {"PowerMac3,1", "Power Mac"},
        {"MacBook10,1", "MacBook"},
        {"macbookpro", ""},
        {"MacMini", ""},
        {"", ""},
    };
    for (const FragmentRow& row : rows)
        EXPECT_EQ(machineType(QString::fromLatin1(row.text)), QString::fromLatin1(row.name)) << row.text;
}

TEST(NameByFragment, TheFirstRowFoundAnywhereDecides)
{
    constexpr FragmentName rows[] = {{u"bc", u"first"}, {u"b", u"second"}, {u"", u"any"}};
    const QString fallback = QStringLiteral("none");
    EXPECT_EQ(nameByFragment(rows, QStringLiteral("abcd"), fallback), QStringLiteral("first"));
    EXPECT_EQ(nameByFragment(rows, QStringLiteral("b bc"), fallback), QStringLiteral("first"));
    EXPECT_EQ(nameByFragment(rows, QStringLiteral("cb"), fallback), QStringLiteral("second"));
    EXPECT_EQ(nameByFragment(rows, QStringLiteral("BC"), fallback), QStringLiteral("any"));
    EXPECT_EQ(nameByFragment(std::span(rows).first(2), QStringLiteral("BC"), fallback), fallback);
    EXPECT_EQ(nameByFragment({}, QStringLiteral("bc"), fallback), fallback);
}

} // namespace
