#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>

#include "platform/linux/power/BatteryTimes.h"
#include "platform/linux/power/LinuxRegistry.h"
#include "platform/linux/power/SupplyDirectory.h"
#include "tests/platform/linux/power/SupplyTree.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

const QString chargeKey = QStringLiteral("CurrentCapacity");
const QString cyclesKey = QStringLiteral("CycleCount");
const QString voltageKey = QStringLiteral("Voltage");

struct AttributeFaultsTest : testing::Test
{
    AttributeFaultsTest()
    {
        tree.add("BAT0", {{"type", "Battery"},
                          {"status", "Discharging"},
                          {"present", "1"},
                          {"charge_now", "2000000"},
                          {"charge_full", "4000000"},
                          {"cycle_count", "7"},
                          {"voltage_now", "12000000"}});
    }

    ssize_t read(int descriptor, const char* attribute, char* buffer, std::size_t size)
    {
        const std::string name = attribute;
        ++reads[name];
        if (const auto error = errors.find(name); error != errors.end())
            return -error->second;
        return readDescriptor(descriptor, attribute, buffer, size);
    }

    QVariant property(const QString& key)
    {
        if (battery == 0)
            battery = registry.serviceMatchingName(QStringLiteral("AppleSmartBattery"));
        return registry.property(battery, key);
    }

    SupplyTree tree;
    std::map<std::string, int> errors;
    std::map<std::string, int> reads;
    std::chrono::milliseconds now{0};
    SupplyDirectory supplies{tree.path(), [this](auto... arguments) { return read(arguments...); },
                             [this] { return now; }};
    BatteryTimes times{[this] { return now; }};
    LinuxRegistry registry{supplies, times, {}};
    RegistryObject battery = 0;
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

TEST_F(AttributeFaultsTest, TheFirstReadIsTriedThreeTimes)
{
    errors["cycle_count"] = EIO;
    EXPECT_FALSE(property(cyclesKey).isValid());
    EXPECT_EQ(reads["cycle_count"], 3);
}

TEST_F(AttributeFaultsTest, AFailingTypeLeavesTheBatteryWhatItWas)
{
    ASSERT_EQ(property(cyclesKey), qint64{7});
    errors["type"] = EIO;
    now += 1s;
    EXPECT_EQ(property(cyclesKey), qint64{7});
}

TEST_F(AttributeFaultsTest, ADeviceThatHasGoneIsNotPresent)
{
    ASSERT_EQ(property(cyclesKey), qint64{7});
    errors["present"] = ENODEV;
    now += 1s;
    EXPECT_FALSE(property(cyclesKey).isValid());
    errors["present"] = EIO;
    now += 1s;
    EXPECT_EQ(property(cyclesKey), qint64{7});
}

TEST_F(AttributeFaultsTest, ENoDevHasTheDirectoryReadSoonButNotEachTime)
{
    ASSERT_EQ(property(cyclesKey), qint64{7});
    errors["cycle_count"] = ENODEV;
    const int before = reads["type"];
    property(cyclesKey);
    property(cyclesKey);
    EXPECT_EQ(reads["type"], before);
    now += 100ms;
    property(cyclesKey);
    property(cyclesKey);
    EXPECT_EQ(reads["type"], before + 1);
}

TEST_F(AttributeFaultsTest, APropertyReadsOnlyWhatItNeeds)
{
    property(cyclesKey);
    reads.clear();
    property(cyclesKey);
    EXPECT_EQ(reads, (std::map<std::string, int>{{"cycle_count", 1}}));
    reads.clear();
    property(QStringLiteral("IsCharging"));
    EXPECT_EQ(reads, (std::map<std::string, int>{{"status", 1}}));
    reads.clear();
    property(voltageKey);
    EXPECT_EQ(reads, (std::map<std::string, int>{{"voltage_now", 1}}));
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
    tree.write("BAT0", "cycle_count", std::string(4 * 1024 * 1024, '7'));
    tree.write("BAT0", "manufacturer", std::string(4 * 1024 * 1024, 'x'));
    EXPECT_FALSE(property(cyclesKey).isValid());
    EXPECT_LE(property(QStringLiteral("Manufacturer")).toString().size(), 4096);
}

TEST_F(AttributeFaultsTest, AFileInPlaceOfASupplyIsPassedOver)
{
    tree.write(".", "BAT1", "x");
    EXPECT_EQ(property(chargeKey), qint64{2000});
}

/// A reader that is slow for "cycle_count": the first read lets the clock run, later ones wait for the test.
class SlowCycleCount
{
public:
    ssize_t read(int descriptor, const char* attribute, char* buffer, std::size_t size)
    {
        if (std::string_view(attribute) == "cycle_count") {
            if (std::this_thread::get_id() == m_mainThread) {
                ++readsOnMainThread;
                clock += 101;
            } else {
                std::unique_lock lock(m_mutex);
                m_changed.wait(lock, [this] { return m_isOpen; });
            }
        }
        return readDescriptor(descriptor, attribute, buffer, size);
    }

    void open()
    {
        const std::scoped_lock lock(m_mutex);
        m_isOpen = true;
        m_changed.notify_all();
    }

    std::atomic<int> clock = 0;
    std::atomic<int> readsOnMainThread = 0;

private:
    const std::thread::id m_mainThread = std::this_thread::get_id();
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOpen = false;
};

struct SlowAttributeTest : AttributeFaultsTest
{
    std::shared_ptr<SlowCycleCount> slow = std::make_shared<SlowCycleCount>();
    SupplyDirectory slowSupplies{tree.path(),
                                 [slow = slow](auto... arguments) { return slow->read(arguments...); },
                                 [slow = slow] { return std::chrono::milliseconds(slow->clock); }};
    LinuxRegistry slowRegistry{slowSupplies, times, {}};

    QVariant cycles()
    {
        if (battery == 0)
            battery = slowRegistry.serviceMatchingName(QStringLiteral("AppleSmartBattery"));
        return slowRegistry.property(battery, cyclesKey);
    }
};

TEST_F(SlowAttributeTest, IsReadElsewhereFromTheSecondTimeOn)
{
    EXPECT_EQ(cycles(), qint64{7});
    tree.write("BAT0", "cycle_count", "8\n");
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(cycles(), qint64{7}); // its read hangs; nobody waits for it
    EXPECT_EQ(slow->readsOnMainThread, 1);
    EXPECT_EQ(slowRegistry.property(battery, chargeKey), qint64{2000});
    slow->open();
    for (int i = 0; i < 10000 && cycles() != qint64{8}; ++i)
        std::this_thread::sleep_for(1ms);
    EXPECT_EQ(cycles(), qint64{8});
    EXPECT_EQ(slow->readsOnMainThread, 1);
}

TEST_F(SlowAttributeTest, AHangingReadHoldsUpNobodyAtTheEnd)
{
    EXPECT_EQ(cycles(), qint64{7});
    EXPECT_EQ(cycles(), qint64{7});
}

} // namespace
