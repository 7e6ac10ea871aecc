#include "platform/macos/LaidOutRegistry.h"

#include <gtest/gtest.h>

#include "platform/recorded/RecordedComputer.h"
#include "platform/recorded/RecordedIORegistry.h"
#include "platform/recorded/RecordedPowerSources.h"
#include "tests/platform/IORegistryContract.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

namespace quindle {

namespace {

class LaidOut : public testing::Test
{
protected:
    RegistryObject openBattery() { return registry.serviceMatchingName(battery); }

    const QString battery = u("AppleSmartBattery");
    FakeRegistry asItIs;
    LaidOutRegistry registry{asItIs};
};

TEST_F(LaidOut, TheBatteryHasTheModelsUnits)
{
    asItIs.entries[battery] = {{u("CurrentCapacity"), qint64{50}},
                               {u("MaxCapacity"), qint64{100}},
                               {u("AppleRawMaxCapacity"), qint64{4000}},
                               {u("InstantAmperage"), qint64{65535}},
                               {u("Voltage"), qint64{12000}}};
    for (const RegistryObject object : {openBattery(), registry.serviceMatchingClass(battery)}) {
        EXPECT_EQ(registry.property(object, u("CurrentCapacity")), QVariant(qint64{2000}));
        EXPECT_EQ(registry.property(object, u("MaxCapacity")), QVariant(qint64{4000}));
        EXPECT_EQ(registry.property(object, u("InstantAmperage")), QVariant(qint64{-1}));
        EXPECT_EQ(registry.property(object, u("Voltage")), QVariant(qint64{12000}));
        EXPECT_EQ(registry.properties(object).value(u("CurrentCapacity")), QVariant(qint64{2000}));
    }
}

TEST_F(LaidOut, OnlyKeysWithALayoutCostMoreThanOneProperty)
{
    asItIs.entries[battery] = {{u("Voltage"), qint64{12000}}};
    const RegistryObject object = openBattery();
    registry.property(object, u("MaxCapacity"));
    EXPECT_EQ(asItIs.reads, QStringList());
    registry.property(object, u("Voltage"));
    EXPECT_EQ(asItIs.reads, QStringList{u("Voltage")});
}

TEST_F(LaidOut, AGhostIsNoBatteryAndLeavesNoHandleOpen)
{
    asItIs.entries[battery] = {{u("BatteryInstalled"), false}};
    EXPECT_EQ(openBattery(), 0U);
    EXPECT_EQ(registry.serviceMatchingClass(battery), 0U);
    EXPECT_TRUE(asItIs.openHandles.isEmpty());
}

TEST_F(LaidOut, OtherEntriesAreAsTheyAre)
{
    const QString expert = u("IOPlatformExpertDevice");
    asItIs.entries[expert] = {{u("Amperage"), qint64{65535}}, {u("BatteryInstalled"), false}};
    for (const RegistryObject object :
         {registry.serviceMatchingName(expert), registry.serviceMatchingClass(expert)}) {
        EXPECT_NE(object, 0U);
        EXPECT_EQ(registry.property(object, u("Amperage")), QVariant(qint64{65535}));
        EXPECT_EQ(registry.properties(object), asItIs.entries[expert]);
        EXPECT_EQ(registry.release(object), kIOReturnSuccess);
    }
}

TEST_F(LaidOut, AReleasedHandleIsNoBatteryAnyMore)
{
    asItIs.entries[battery] = {{u("MaxCapacity"), qint64{5000}}};
    const RegistryObject object = openBattery();
    EXPECT_EQ(registry.release(object), kIOReturnSuccess);
    EXPECT_EQ(registry.release(object), FakeRegistry::notOpen);
    EXPECT_FALSE(registry.property(object, u("MaxCapacity")).isValid());
}

TEST_F(LaidOut, WhetherAGhostIsMatched)
{
    EXPECT_EQ(registry.isMatched(battery), std::nullopt);
    asItIs.tellsWhetherMatched = true;
    EXPECT_EQ(registry.isMatched(battery), false);
    asItIs.entries[battery] = {{u("BatteryInstalled"), false}};
    EXPECT_EQ(registry.isMatched(battery), false);
    asItIs.entries[battery] = {{u("BatteryInstalled"), true}};
    EXPECT_EQ(registry.isMatched(battery), true);
    EXPECT_TRUE(asItIs.openHandles.isEmpty());
}

} // namespace

/// A laid-out registry keeps the contract of a registry.
class LaidOutBatteries
{
public:
    IORegistry& registry() { return m_registry; }
    PowerSources& powerSources() { return m_powerSources; }

    void plugIn(qint64 milliampHours)
    {
        const QVariantMap battery{{u("CurrentCapacity"), milliampHours}};
        enter({{u("Registry"), QVariantMap{{u("AppleSmartBattery"), battery}}},
               {u("PowerSources"), QVariantList{QVariantMap()}}},
              {});
    }

    void pullOut() { enter({{u("PowerSources"), QVariantList()}}, {u("Registry/AppleSmartBattery")}); }

private:
    void enter(const QVariantMap& keys, const QStringList& remove)
    {
        m_computer.enter({remove, keys, {}, 10});
    }

    RecordedComputer m_computer{{{u("PowerSources"), QVariantList()}}, QString()};
    RecordedIORegistry m_asItIs{m_computer};
    RecordedPowerSources m_powerSources{m_computer};
    LaidOutRegistry m_registry{m_asItIs};
};

INSTANTIATE_TYPED_TEST_SUITE_P(LaidOut, IORegistryContract, LaidOutBatteries);

} // namespace quindle
