// The attribute files of many batteries stayed open until the process had no descriptor left for anything
// else; and one that was taken out while they were described ended the program.

#include "tests/faults/HelperOnSupplies.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct ManySuppliesTest : testing::Test, HelperOnSupplies
{
    ManySuppliesTest() { QDir().mkpath(QString::fromStdString(tree.path())); }

    void addBatteries(int count)
    {
        for (int number = 0; number < count; ++number)
            tree.add("BAT" + std::to_string(number), dischargingBattery());
    }

    static qsizetype openFiles()
    {
        return QDir(QStringLiteral("/proc/self/fd"))
            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries)
            .size();
    }
};

TEST_F(ManySuppliesTest, NoneIsAComputerWithoutABattery)
{
    launch(QStringLiteral("%p%"));
    passTenSeconds();
    EXPECT_EQ(title(), QString());
    EXPECT_EQ(delegate->shownView()->name, QStringLiteral("noBatteryView"));
    EXPECT_EQ(powerSources.sourceCount(), 0);
}

TEST_F(ManySuppliesTest, FortyAreOneBatteryAndTakeFewDescriptors)
{
    addBatteries(40);
    const qsizetype before = openFiles();
    launch(QStringLiteral("%p% %mA"));
    for (int refresh = 0; refresh < 3; ++refresh)
        passTenSeconds();
    EXPECT_EQ(title(), QStringLiteral("50.0% -40000"));
    EXPECT_EQ(powerSources.sourceCount(), 40);
    EXPECT_LE(openFiles() - before, 40 + 16 * 12 + 5); // folders, files of the first
}

TEST_F(ManySuppliesTest, OneTakenOutAfterTheListIsStillDescribed)
{
    addBatteries(2);
    launch(QStringLiteral("%p%"));
    ASSERT_EQ(powerSources.sourceCount(), 2);
    tree.remove("BAT1");
    now += std::chrono::seconds(2);                       // the directory is due to be read again
    EXPECT_TRUE(powerSources.description(1).has_value()); // without one the program would end
    passTenSeconds();
    EXPECT_EQ(powerSources.sourceCount(), 1);
    EXPECT_FALSE(powerSources.description(1).has_value());
}

TEST_F(ManySuppliesTest, TheyMayGoAndComeBack)
{
    addBatteries(40);
    launch(QStringLiteral("%p% %mA"));
    for (int number = 0; number < 40; ++number)
        tree.remove("BAT" + std::to_string(number));
    passTenSeconds();
    EXPECT_EQ(powerSources.sourceCount(), 0);
    addBatteries(1);
    passTenSeconds();
    EXPECT_EQ(title(), QStringLiteral("50.0% -1000"));
    addBatteries(40);
    passTenSeconds();
    EXPECT_EQ(title(), QStringLiteral("50.0% -40000"));
}

} // namespace
