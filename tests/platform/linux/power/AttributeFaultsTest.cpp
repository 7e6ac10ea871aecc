#include <cerrno>
#include <map>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>

#include "platform/linux/power/PowerSampler.h"
#include "tests/platform/linux/power/Patience.h"
#include "tests/platform/linux/power/RegistryKeys.h"
#include "tests/platform/linux/power/SupplyTree.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

const QString voltageKey = QStringLiteral("Voltage");

const SupplyTree::Texts discharging = {{"type", "Battery"},        {"status", "Discharging"},
                                       {"present", "1"},           {"charge_now", "2000000"},
                                       {"charge_full", "4000000"}, {"cycle_count", "7"},
                                       {"voltage_now", "12000000"}};

struct AttributeFaultsTest : testing::Test
{
    AttributeFaultsTest() { tree.add("BAT0", discharging); }

    ssize_t read(int descriptor, const char* attribute, char* buffer, std::size_t size)
    {
        ++reads[attribute];
        if (const auto error = errors.find(attribute); error != errors.end())
            return -error->second;
        return readDescriptor(descriptor, attribute, buffer, size);
    }

    QVariant property(const QString& key)
    {
        sampler.expire();
        return sampler.sample()->batteryEntry.value(key);
    }

    bool hasBattery() { return property(chargeKey).isValid(); }

    SupplyTree tree;
    std::map<std::string, int> errors;
    std::map<std::string, int> reads;
    std::chrono::milliseconds now{0};
    PowerSampler sampler{tree.path(), [this](auto... arguments) { return read(arguments...); },
                         [this] { return now; }, endlessPatience};
};

TEST_F(AttributeFaultsTest, AnAttributeWithoutAValueIsMissingThatTimeOnly)
{
    for (const int error : {ENODATA, ENODEV}) {
        errors["cycle_count"] = error;
        EXPECT_FALSE(property(cyclesKey).isValid()) << error;
        EXPECT_EQ(property(chargeKey), qint64{2000}) << error;
        errors.clear();
        EXPECT_EQ(property(cyclesKey), qint64{7}) << error;
    }
}

TEST_F(AttributeFaultsTest, AnAccidentGivesTheLastValueForHalfAMinute)
{
    for (const int error : {EIO, EAGAIN, EBUSY, ETIMEDOUT, EINTR, EREMOTEIO}) {
        EXPECT_EQ(property(cyclesKey), qint64{7}) << error;
        errors["cycle_count"] = error;
        now += 29999ms;
        EXPECT_EQ(property(cyclesKey), qint64{7}) << error;
        now += 1ms;
        EXPECT_FALSE(property(cyclesKey).isValid()) << error;
        errors.clear();
    }
}

TEST_F(AttributeFaultsTest, AnAccidentAfterNoValueGivesNone)
{
    EXPECT_EQ(property(cyclesKey), qint64{7});
    errors["cycle_count"] = ENODATA;
    EXPECT_FALSE(property(cyclesKey).isValid());
    errors["cycle_count"] = EIO;
    EXPECT_FALSE(property(cyclesKey).isValid());
}

TEST_F(AttributeFaultsTest, AnAccidentIsTriedFourTimes)
{
    errors["cycle_count"] = EIO;
    EXPECT_FALSE(property(cyclesKey).isValid());
    EXPECT_EQ(reads["cycle_count"], 4);
    errors.clear();
    EXPECT_EQ(property(cyclesKey), qint64{7});
    errors["cycle_count"] = EIO;
    reads.clear();
    EXPECT_EQ(property(cyclesKey), qint64{7});
    EXPECT_EQ(reads["cycle_count"], 4);
}

TEST_F(AttributeFaultsTest, AFailingTypeLeavesTheBatteryWhatItWas)
{
    ASSERT_EQ(property(cyclesKey), qint64{7});
    errors["type"] = EIO;
    tree.write("BAT0", "cycle_count", "8");
    EXPECT_EQ(property(cyclesKey), qint64{8});
    EXPECT_GE(reads["type"], 2);
}

TEST_F(AttributeFaultsTest, ADeviceThatHasGoneIsNotPresent)
{
    ASSERT_TRUE(hasBattery());
    errors["present"] = ENODEV;
    EXPECT_FALSE(hasBattery());
    errors.clear();
    EXPECT_TRUE(hasBattery());
}

TEST_F(AttributeFaultsTest, EachAttributeIsReadOnceAndTheTypeNoMore)
{
    ASSERT_TRUE(hasBattery());
    reads.clear();
    ASSERT_TRUE(hasBattery());
    EXPECT_EQ(reads, (std::map<std::string, int>{{"status", 1},
                                                 {"present", 1},
                                                 {"charge_now", 1},
                                                 {"charge_full", 1},
                                                 {"cycle_count", 1},
                                                 {"voltage_now", 1}}));
}

TEST_F(AttributeFaultsTest, WhatIsNoRegularFileCountsAsMissing)
{
    ASSERT_TRUE(QFile::remove(tree.pathOf("BAT0", "cycle_count")));
    ASSERT_EQ(mkfifo(tree.pathOf("BAT0", "cycle_count").toUtf8().constData(), 0600), 0);
    ASSERT_TRUE(QFile::remove(tree.pathOf("BAT0", "voltage_now")));
    ASSERT_TRUE(QDir().mkpath(tree.pathOf("BAT0", "voltage_now")));
    EXPECT_FALSE(property(cyclesKey).isValid());
    EXPECT_FALSE(property(voltageKey).isValid());
    EXPECT_EQ(property(chargeKey), qint64{2000});
}

TEST_F(AttributeFaultsTest, AHugeFileIsNoNumber)
{
    tree.write("BAT0", "cycle_count", std::string(std::size_t{4} * 1024 * 1024, '7'));
    tree.write("BAT0", "manufacturer", std::string(std::size_t{4} * 1024 * 1024, 'x'));
    EXPECT_FALSE(property(cyclesKey).isValid());
    EXPECT_LE(property(QStringLiteral("Manufacturer")).toString().size(), 4096);
}

TEST_F(AttributeFaultsTest, AFileInPlaceOfASupplyIsPassedOver)
{
    tree.write(".", "BAT1", "x");
    EXPECT_EQ(property(chargeKey), qint64{2000});
}

/// A supply whose uevent says what its other files say.
struct UeventTest : AttributeFaultsTest
{
    static std::string uevent(const std::string& charge)
    {
        return "POWER_SUPPLY_NAME=BAT0\nPOWER_SUPPLY_STATUS=Discharging\nPOWER_SUPPLY_CHARGE_FULL=4000000\n"
               "POWER_SUPPLY_CYCLE_COUNT=9\nPOWER_SUPPLY_CHARGE_NOW=" +
               charge + '\n';
    }

    UeventTest()
    {
        tree.remove("BAT0");
        tree.add("BAT0", {{"type", "Battery"},
                          {"status", "Discharging"},
                          {"charge_full", "4000000"},
                          {"charge_now", "3000000"},
                          {"uevent", uevent("3000000")}});
    }
};

TEST_F(UeventTest, HoldsAllOfASupplyInOneRead)
{
    EXPECT_EQ(property(chargeKey), qint64{3000});
    EXPECT_EQ(property(cyclesKey), qint64{9});
    reads.clear();
    EXPECT_EQ(property(chargeKey), qint64{3000});
    EXPECT_EQ(reads, (std::map<std::string, int>{{"uevent", 1}}));
}

TEST_F(UeventTest, OneThatTheDriverLeftEmptyGivesWayToSingleFiles)
{
    ASSERT_EQ(property(cyclesKey), qint64{9});
    tree.write("BAT0", "uevent", "");
    EXPECT_EQ(property(chargeKey), qint64{3000});
    EXPECT_FALSE(property(cyclesKey).isValid());
    tree.write("BAT0", "uevent", uevent("3000000"));
    EXPECT_EQ(property(cyclesKey), qint64{9});
}

TEST_F(UeventTest, OneThatFailsGivesWayToSingleFiles)
{
    for (const int error : {EIO, ENODATA, EINVAL}) {
        errors["uevent"] = error;
        EXPECT_EQ(property(chargeKey), qint64{3000}) << error;
        EXPECT_FALSE(property(cyclesKey).isValid()) << error;
        errors.clear();
        EXPECT_EQ(property(cyclesKey), qint64{9}) << error;
    }
}

TEST_F(UeventTest, WhatItSaidStandsInForASingleFileThatFails)
{
    ASSERT_EQ(property(chargeKey), qint64{3000});
    errors["uevent"] = EIO;
    errors["charge_now"] = EIO;
    now += 29999ms;
    EXPECT_EQ(property(chargeKey), qint64{3000});
    now += 1ms;
    EXPECT_FALSE(property(chargeKey).isValid());
}

/// Figures of two moments must not be mixed. Files that someone has collected, or edits, may be of two.
TEST_F(UeventTest, OneThatSaysAnotherThingThanTheFilesIsNotUsed)
{
    ASSERT_EQ(property(cyclesKey), qint64{9});
    tree.write("BAT0", "charge_now", "2000000\n");
    EXPECT_EQ(property(chargeKey), qint64{2000});
    EXPECT_FALSE(property(cyclesKey).isValid());
    tree.write("BAT0", "uevent", uevent("2000000"));
    EXPECT_EQ(property(cyclesKey), qint64{9});
    tree.write("BAT0", "voltage_now", "12000000\n");
    EXPECT_EQ(property(voltageKey), qint64{12000});
}

TEST_F(UeventTest, AnotherSupplyOfTheSameNameIsReadAnew)
{
    ASSERT_EQ(property(chargeKey), qint64{3000});
    tree.remove("BAT0");
    tree.add("AC", {{"type", "Mains"}, {"online", "1"}}); // takes whichever inode has become free
    tree.add("BAT0", discharging);
    EXPECT_EQ(property(chargeKey), qint64{2000});
}

} // namespace
