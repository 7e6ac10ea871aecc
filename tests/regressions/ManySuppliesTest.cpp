// The attribute files of many batteries stayed open until the process had no descriptor left for anything
// else; each of them had its folder open besides, so that three hundred ended a program that may have 256;
// and one that was taken out while they were described ended it too.

#include <ctime>

#include <sys/resource.h>

#include "tests/faults/HelperOnSupplies.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct ManySuppliesFixture : HelperOnSupplies
{
    ManySuppliesFixture() { QDir().mkpath(QString::fromStdString(tree.path())); }

    void addBatteries(int count)
    {
        for (int number = 0; number < count; ++number)
            tree.add("BAT" + std::to_string(number), dischargingBattery());
    }

    /// With all that is needed in their uevents, as the kernel has them.
    void addWholeBatteries(int count)
    {
        std::string properties;
        for (const auto& [attribute, text] : dischargingBattery())
            properties += "POWER_SUPPLY_" + QString::fromStdString(attribute).toUpper().toStdString() + '=' +
                          text + '\n';
        for (int number = 0; number < count; ++number) {
            const std::string name = "BAT" + std::to_string(number);
            tree.add(name,
                     {{"type", "Battery"}, {"uevent", "POWER_SUPPLY_NAME=" + name + '\n' + properties}});
        }
    }

    static qsizetype openFiles()
    {
        return QDir(QStringLiteral("/proc/self/fd"))
            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries)
            .size();
    }
};

struct ManySuppliesTest : testing::Test, ManySuppliesFixture
{
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
    EXPECT_LE(openFiles() - before, 256 + 2); // the folder, and what hears of changes in it
}

/// As `ulimit -n` does for the processes that it starts.
class DescriptorLimit
{
public:
    explicit DescriptorLimit(rlim_t limit)
    {
        getrlimit(RLIMIT_NOFILE, &m_former);
        const rlimit lower{limit, m_former.rlim_max};
        setrlimit(RLIMIT_NOFILE, &lower);
    }
    ~DescriptorLimit() { setrlimit(RLIMIT_NOFILE, &m_former); }
    DescriptorLimit(const DescriptorLimit&) = delete;
    DescriptorLimit& operator=(const DescriptorLimit&) = delete;

private:
    rlimit m_former{};
};

/// The folder's sampler counts when it is made.
TEST(ManySupplies, ThreeHundredLeaveMostOf256DescriptorsFree)
{
    const DescriptorLimit limit(256);
    ManySuppliesFixture helper;
    helper.addBatteries(300);
    helper.launch(QStringLiteral("%p% %mA"));
    for (int refresh = 0; refresh < 3; ++refresh)
        helper.passTenSeconds();
    EXPECT_EQ(helper.title(), QStringLiteral("50.0% -300000"));
    EXPECT_LE(ManySuppliesFixture::openFiles(), 128);
}

/// Of all threads, which is what an idle machine takes: on a busy one the clock on the wall says how busy.
std::chrono::duration<double> processorTime()
{
    return std::chrono::duration<double>(static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
}

TEST_F(ManySuppliesTest, FiveThousandTakeSecondsAtMost)
{
    addWholeBatteries(5000);
    const auto begun = processorTime();
    launch(QStringLiteral("%p% %mA"));
    const auto launched = processorTime();
    EXPECT_EQ(title(), QStringLiteral("50.0% -5000000"));
    passTenSeconds();
    const auto refreshed = processorTime();
    EXPECT_EQ(title(), QStringLiteral("50.0% -5000000"));
    // Seconds; usually half of one, on a slow computer more than one. The sanitizers make five of one.
    constexpr double most = QUINDLE_IS_SANITIZED ? 20 : 4;
    EXPECT_LT((launched - begun).count(), most);
    EXPECT_LT((refreshed - launched).count(), most);
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
