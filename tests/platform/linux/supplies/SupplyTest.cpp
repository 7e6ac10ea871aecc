#include <cerrno>
#include <map>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>

#include "platform/linux/supplies/Supply.h"
#include "tests/platform/linux/power/SupplyTree.h"

using namespace quindle;

namespace {

struct NoSteps : ReadSteps
{
    std::optional<ssize_t> insteadOf(const std::string& /*path*/, char* /*buffer*/,
                                     std::size_t /*size*/) override
    {
        return std::nullopt;
    }
    void begin(const std::string& /*path*/) override {}
    void end(const char* /*buffer*/, ssize_t /*result*/) override {}
};

/// A supply as the kernel shows it: uevent and files are made of the device whenever they are read.
struct SupplyTest : testing::Test
{
    SupplyTest()
    {
        tree.add("BAT0", {{"type", "Battery"},
                          {"charge_now", "2000000"},
                          {"charge_full", "4000000"},
                          {"uevent", "POWER_SUPPLY_NAME=BAT0\nPOWER_SUPPLY_CHARGE_NOW=3000000"}});
        reader.setFolder(folder.get());
    }

    std::optional<double> number(Attribute attribute)
    {
        return supply.read(reader).attributes.number(attribute);
    }

    ssize_t read(int descriptor, const char* name, char* buffer, std::size_t size)
    {
        ++reads[name];
        const auto error = errors.find(name);
        return error != errors.end() ? -error->second : readDescriptor(descriptor, name, buffer, size);
    }

    SupplyTree tree;
    FileDescriptor folder{open(tree.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    std::map<std::string, int> errors;
    std::map<std::string, int> reads;
    NoSteps steps;
    FileReader reader{[this](auto... arguments) { return read(arguments...); }, steps};
    Supply supply{"BAT0", std::nullopt};
};

TEST_F(SupplyTest, TheKernelsUeventIsTaken)
{
    supply.look(reader, Supply::Uevent::Kernel);
    EXPECT_EQ(supply.kind(), SupplyKind::Battery);
    EXPECT_EQ(number(Attribute::ChargeNow), 3000000);
    EXPECT_EQ(number(Attribute::ChargeFull), std::nullopt); // the driver has no value for it now
    reads.clear();
    number(Attribute::ChargeNow);
    EXPECT_EQ(reads, (std::map<std::string, int>{{"uevent", 1}}));
}

TEST_F(SupplyTest, AWrittenUeventIsTakenWhereItSaysWhatTheFilesSay)
{
    supply.look(reader, Supply::Uevent::File);
    EXPECT_EQ(number(Attribute::ChargeNow), 2000000);
    tree.write("BAT0", "uevent",
               "POWER_SUPPLY_NAME=BAT0\nPOWER_SUPPLY_CHARGE_NOW=2000000\nPOWER_SUPPLY_CHARGE_FULL=4000000\n"
               "POWER_SUPPLY_CYCLE_COUNT=5\n");
    supply.look(reader, Supply::Uevent::File);
    EXPECT_EQ(number(Attribute::CycleCount), 5);
    supply.look(reader, Supply::Uevent::FileUnseen);
    EXPECT_EQ(number(Attribute::CycleCount), std::nullopt);
}

TEST_F(SupplyTest, WhatNoUeventNeedHoldIsReadAtEachLook)
{
    tree.write("BAT0", "charge_control_end_threshold", "80\n");
    supply.look(reader, Supply::Uevent::Kernel);
    EXPECT_EQ(number(Attribute::ChargeControlEndThreshold), 80);
    EXPECT_EQ(supply.read(reader).attributes.text(Attribute::Type), "Battery\n");
    tree.write("BAT0", "charge_control_end_threshold", "90\n");
    EXPECT_EQ(number(Attribute::ChargeControlEndThreshold), 80);
    reads.clear();
    supply.lookAgain(reader);
    EXPECT_EQ(reads, (std::map<std::string, int>{{"charge_control_end_threshold", 1}}));
    EXPECT_EQ(number(Attribute::ChargeControlEndThreshold), 90);
    EXPECT_EQ(supply.read(reader).attributes.text(Attribute::Type), "Battery\n");
}

TEST_F(SupplyTest, AUeventsOwnThresholdIsTheOneInForce)
{
    tree.write("BAT0", "charge_control_end_threshold", "80\n");
    supply.look(reader, Supply::Uevent::Kernel);
    tree.write("BAT0", "uevent", "POWER_SUPPLY_NAME=BAT0\nPOWER_SUPPLY_CHARGE_CONTROL_END_THRESHOLD=60\n");
    EXPECT_EQ(number(Attribute::ChargeControlEndThreshold), 60);
}

TEST_F(SupplyTest, FilesThatComeLaterAreFoundAtALook)
{
    errors["uevent"] = EIO;
    supply.look(reader, Supply::Uevent::Kernel);
    EXPECT_EQ(number(Attribute::CycleCount), std::nullopt);
    tree.write("BAT0", "cycle_count", "5\n");
    EXPECT_EQ(number(Attribute::CycleCount), std::nullopt);
    supply.lookAgain(reader);
    EXPECT_EQ(number(Attribute::CycleCount), 5);
}

TEST_F(SupplyTest, WithoutATypeItIsWhatItWasBefore)
{
    errors["type"] = EIO;
    supply.look(reader, Supply::Uevent::Kernel);
    EXPECT_EQ(supply.kind(), std::nullopt);
    EXPECT_FALSE(supply.wasLookedAt());
    Supply known("BAT0", SupplyKind::Battery);
    known.look(reader, Supply::Uevent::Kernel);
    EXPECT_EQ(known.kind(), SupplyKind::Battery);
    errors.clear();
    supply.look(reader, Supply::Uevent::Kernel);
    EXPECT_EQ(supply.kind(), SupplyKind::Battery);
}

TEST_F(SupplyTest, ADeviceThatHasGoneIsOpenedAnew)
{
    supply.look(reader, Supply::Uevent::Kernel);
    ASSERT_EQ(number(Attribute::ChargeNow), 3000000);
    ASSERT_TRUE(QFile::remove(tree.pathOf("BAT0", "uevent")));
    tree.write("BAT0", "uevent", "POWER_SUPPLY_NAME=BAT0\nPOWER_SUPPLY_CHARGE_NOW=1000000\n");
    EXPECT_EQ(number(Attribute::ChargeNow), 3000000); // the file that is open
    errors["uevent"] = ENODEV;
    number(Attribute::ChargeNow);
    errors.clear();
    EXPECT_EQ(number(Attribute::ChargeNow), 1000000);
}

} // namespace
