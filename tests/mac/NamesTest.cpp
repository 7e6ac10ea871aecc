#include <gtest/gtest.h>

#include "mac/MachineType.h"
#include "mac/OSXVersionName.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct Row
{
    const char* text;
    const char* name;
};

TEST(OSXVersionName, Table)
{
    constexpr Row rows[] = {
        {"10.14.6", "OS X"},
        {"10.13", "OS X"},
        {"10.12.6", "macOS Sierra"},
        {"10.11.6", "OS X El Capitan"},
        {"10.10.9", "OS X Yosemite"},
        {"10.9.5", "OS X Mavericks"},
        {"10.8", "Mac OS X Mountain Lion"},
        {"10.7", "Mac OS X Lion"},
        {"10.6.8", "Mac OS X Snow Leopard"},
        {"10.60", "Mac OS X Snow Leopard"},
        {"10.5.8", "OS X"},
        {"10.1", "OS X"},
        {"10.15.7", "OS X"},
        {"13.0", "OS X"},
        {"110.12", "macOS Sierra"},
        {"", "OS X"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(osxVersionName(QString::fromLatin1(row.text)), QString::fromLatin1(row.name)) << row.text;
}

TEST(MachineType, Table)
{
    constexpr Row rows[] = {
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
    for (const Row& row : rows)
        EXPECT_EQ(machineType(QString::fromLatin1(row.text)), QString::fromLatin1(row.name)) << row.text;
}

} // namespace
