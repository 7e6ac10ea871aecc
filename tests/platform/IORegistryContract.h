#pragma once

#include <gtest/gtest.h>

#include "platform/IORegistry.h"
#include "platform/PowerSources.h"
#include "tests/support/QtPrinters.h"

namespace quindle {

/// What every back end's registry and power sources must do. A back end instantiates the suite with a type
/// that makes a computer without a battery:
///
///     struct Maker
///     {
///         IORegistry& registry();
///         PowerSources& powerSources();
///         void plugIn(qint64 milliampHours); ///< the one battery, or another charge of it
///         void pullOut();
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(Linux, IORegistryContract, Maker);
template <typename Maker>
class IORegistryContract : public testing::Test
{
protected:
    static QString charge() { return QStringLiteral("CurrentCapacity"); }

    IORegistry& registry() { return maker.registry(); }
    RegistryObject openBattery()
    {
        return registry().serviceMatchingName(QStringLiteral("AppleSmartBattery"));
    }

    Maker maker;
};

TYPED_TEST_SUITE_P(IORegistryContract);

TYPED_TEST_P(IORegistryContract, WithoutABatteryThereIsNoHandle)
{
    EXPECT_EQ(this->openBattery(), 0U);
    EXPECT_FALSE(this->registry().property(0, this->charge()).isValid());
    EXPECT_TRUE(this->registry().properties(0).isEmpty());
}

TYPED_TEST_P(IORegistryContract, UnknownNamesAndClassesAreNotFound)
{
    this->maker.plugIn(3000);
    EXPECT_EQ(this->registry().serviceMatchingName(QStringLiteral("applesmartbattery")), 0U);
    EXPECT_EQ(this->registry().serviceMatchingName(QString()), 0U);
    EXPECT_EQ(this->registry().serviceMatchingClass(QStringLiteral("Unknown")), 0U);
}

TYPED_TEST_P(IORegistryContract, ReadsIntegersOf64Bits)
{
    this->maker.plugIn(3000);
    const RegistryObject battery = this->openBattery();
    ASSERT_NE(battery, 0U);
    const QVariant charge = this->registry().property(battery, this->charge());
    EXPECT_EQ(charge.typeId(), QMetaType::LongLong);
    EXPECT_EQ(charge, QVariant(qint64{3000}));
    EXPECT_EQ(this->registry().properties(battery).value(this->charge()), charge);
    EXPECT_FALSE(this->registry().property(battery, QStringLiteral("currentCapacity")).isValid());
}

TYPED_TEST_P(IORegistryContract, EveryReadIsFresh)
{
    this->maker.plugIn(3000);
    const RegistryObject battery = this->openBattery();
    this->maker.plugIn(2000);
    EXPECT_EQ(this->registry().property(battery, this->charge()), QVariant(qint64{2000}));
}

TYPED_TEST_P(IORegistryContract, HandlesAreApart)
{
    this->maker.plugIn(3000);
    const RegistryObject first = this->openBattery();
    const RegistryObject second = this->openBattery();
    EXPECT_NE(first, second);
    EXPECT_EQ(this->registry().release(first), kIOReturnSuccess);
    EXPECT_NE(this->registry().release(first), kIOReturnSuccess);
    EXPECT_FALSE(this->registry().property(first, this->charge()).isValid());
    EXPECT_TRUE(this->registry().properties(first).isEmpty());
    EXPECT_EQ(this->registry().property(second, this->charge()), QVariant(qint64{3000}));
}

TYPED_TEST_P(IORegistryContract, ReleasingNothingFails)
{
    EXPECT_NE(this->registry().release(0), kIOReturnSuccess);
    EXPECT_NE(this->registry().release(77), kIOReturnSuccess);
}

TYPED_TEST_P(IORegistryContract, AHandleOutlivesItsBattery)
{
    this->maker.plugIn(3000);
    const RegistryObject battery = this->openBattery();
    this->maker.pullOut();
    const QVariant gone = this->registry().property(battery, this->charge());
    EXPECT_TRUE(!gone.isValid() || gone == QVariant(qint64{3000}));
    EXPECT_EQ(this->registry().properties(battery).value(this->charge()), gone);
    EXPECT_EQ(this->openBattery(), 0U);
    this->maker.plugIn(1000);
    EXPECT_EQ(this->registry().property(battery, this->charge()), QVariant(qint64{1000}));
    EXPECT_EQ(this->registry().release(battery), kIOReturnSuccess);
}

TYPED_TEST_P(IORegistryContract, WhereEntriesComeAndGoItTellsWhichAreThere)
{
    const QString name = QStringLiteral("AppleSmartBattery");
    const std::optional<bool> without = this->registry().isMatched(name);
    this->maker.plugIn(3000);
    const std::optional<bool> with = this->registry().isMatched(name);
    EXPECT_EQ(with.has_value(), without.has_value());
    EXPECT_FALSE(without.value_or(false));
    EXPECT_TRUE(with.value_or(true));
    EXPECT_FALSE(this->registry().isMatched(QStringLiteral("Unknown")).value_or(false));
    this->maker.pullOut();
    EXPECT_EQ(this->registry().isMatched(name), without);
}

TYPED_TEST_P(IORegistryContract, SourcesAreDescribedByTheirIndex)
{
    EXPECT_EQ(this->maker.powerSources().sourceCount(), 0);
    EXPECT_EQ(this->maker.powerSources().description(0), std::nullopt);
    this->maker.plugIn(3000);
    EXPECT_EQ(this->maker.powerSources().sourceCount(), 1);
    EXPECT_TRUE(this->maker.powerSources().description(0).has_value());
    EXPECT_EQ(this->maker.powerSources().description(1), std::nullopt);
    EXPECT_EQ(this->maker.powerSources().description(-1), std::nullopt);
    EXPECT_EQ(this->maker.powerSources().externalAdapterDetails(), std::nullopt);
}

REGISTER_TYPED_TEST_SUITE_P(IORegistryContract, WithoutABatteryThereIsNoHandle,
                            UnknownNamesAndClassesAreNotFound, ReadsIntegersOf64Bits, EveryReadIsFresh,
                            HandlesAreApart, ReleasingNothingFails, AHandleOutlivesItsBattery,
                            WhereEntriesComeAndGoItTellsWhichAreThere, SourcesAreDescribedByTheirIndex);

} // namespace quindle
