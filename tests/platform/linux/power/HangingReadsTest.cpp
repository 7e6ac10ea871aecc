// A driver that hangs while a file is read: everybody waited for it without end.

#include <array>
#include <cerrno>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "platform/linux/power/PowerSampler.h"
#include "tests/platform/linux/power/RegistryKeys.h"
#include "tests/platform/linux/power/SupplyTree.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

/// Reads files, but for those that hang until they are let go.
class Driver
{
public:
    ssize_t read(int descriptor, const char* attribute, char* buffer, std::size_t size)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return !m_hanging.contains(attribute) && !m_hanging.contains("*"); });
        m_readSince.insert(attribute);
        return readDescriptor(descriptor, attribute, buffer, size);
    }

    void hangAt(const std::string& attribute)
    {
        const std::scoped_lock lock(m_mutex);
        m_hanging.insert(attribute);
    }

    void letGo()
    {
        const std::scoped_lock lock(m_mutex);
        m_hanging.clear();
        m_changed.notify_all();
    }

    /// The names of the files that were read since it was asked last.
    std::set<std::string> takeRead()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_readSince, {});
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::set<std::string> m_hanging;
    std::set<std::string> m_readSince;
};

struct HangingReadsTest : testing::Test
{
    HangingReadsTest()
    {
        tree.add("BAT0", {{"type", "Battery"},
                          {"status", "Discharging"},
                          {"charge_now", "2000000"},
                          {"charge_full", "4000000"},
                          {"cycle_count", "7"}});
        tree.add("BAT1", {{"type", "Battery"}, {"charge_now", "1000000"}, {"charge_full", "4000000"}});
    }

    ~HangingReadsTest() override { driver->letGo(); }

    QVariant property(const QString& key)
    {
        sampler.expire();
        return sampler.sample()->batteryEntry.value(key);
    }

    /// Whether it becomes true within a while: machines are busy.
    bool comesToSay(const QString& key, const QVariant& value)
    {
        for (int tries = 0; tries < 3000; ++tries) {
            if (property(key) == value)
                return true;
            std::this_thread::sleep_for(10ms);
        }
        return false;
    }

    void writeUevent(const std::string& charge)
    {
        tree.write("BAT0", "uevent",
                   "POWER_SUPPLY_NAME=BAT0\nPOWER_SUPPLY_STATUS=Discharging\nPOWER_SUPPLY_CHARGE_NOW=" +
                       charge + "\nPOWER_SUPPLY_CHARGE_FULL=4000000\nPOWER_SUPPLY_CYCLE_COUNT=7\n");
    }

    /// Whether BAT0, the only one with a uevent and with cycles, is read by that one file in the end.
    /// That it says what the other files say is known only once one of them has changed.
    bool comesToReadUeventsOnly(const std::string& charge)
    {
        for (int tries = 0; tries < 3000; ++tries) {
            writeUevent(charge);
            property(chargeKey);
            driver->takeRead();
            property(chargeKey);
            const std::set<std::string> files = driver->takeRead();
            if (files.contains("uevent") && !files.contains("cycle_count"))
                return true;
            std::this_thread::sleep_for(10ms);
        }
        return false;
    }

    SupplyTree tree;
    std::chrono::milliseconds now{0};
    std::shared_ptr<Driver> driver = std::make_shared<Driver>();
    PowerSampler sampler{tree.path(),
                         [driver = driver](auto... arguments) { return driver->read(arguments...); },
                         [this] { return now; }, ReadingPatience{}};
};

TEST_F(HangingReadsTest, AtTheStartAllButThatValueIsThereInTime)
{
    driver->hangAt("cycle_count");
    property(chargeKey); // which returns
    EXPECT_TRUE(comesToSay(chargeKey, qint64{3000}));
    EXPECT_FALSE(property(cyclesKey).isValid());
}

TEST_F(HangingReadsTest, LaterTheLastValueStandsForHalfAMinute)
{
    ASSERT_TRUE(comesToSay(cyclesKey, qint64{7}));
    driver->hangAt("cycle_count");
    tree.write("BAT0", "cycle_count", "8\n");
    tree.write("BAT0", "charge_now", "1500000\n");
    EXPECT_TRUE(comesToSay(chargeKey, qint64{2500})); // it holds up no other file
    EXPECT_EQ(property(cyclesKey), qint64{7});
    now += 29999ms;
    EXPECT_EQ(property(cyclesKey), qint64{7});
    now += 1ms;
    EXPECT_TRUE(comesToSay(cyclesKey, QVariant()));
    EXPECT_TRUE(comesToSay(chargeKey, qint64{2500}));
    driver->letGo();
    EXPECT_TRUE(comesToSay(cyclesKey, qint64{8}));
}

TEST_F(HangingReadsTest, AUeventThatHangsGivesWayToSingleFiles)
{
    ASSERT_TRUE(comesToReadUeventsOnly("2000000"));
    ASSERT_TRUE(comesToSay(chargeKey, qint64{3000}));
    driver->hangAt("uevent");
    tree.write("BAT0", "charge_now", "1500000\n");
    EXPECT_TRUE(comesToSay(chargeKey, qint64{2500}));
    driver->letGo();
    EXPECT_TRUE(comesToReadUeventsOnly("1500000"));
    EXPECT_TRUE(comesToSay(chargeKey, qint64{2500}));
}

TEST_F(HangingReadsTest, ADriverThatHangsEverywhereIsGivenUp)
{
    ASSERT_TRUE(comesToSay(chargeKey, qint64{3000}));
    driver->hangAt("*");
    for (int refresh = 0; refresh < 50; ++refresh)
        EXPECT_EQ(property(chargeKey), qint64{3000});
    const auto begun = std::chrono::steady_clock::now();
    for (int refresh = 0; refresh < 200; ++refresh)
        property(chargeKey);
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 20s); // it is not waited for each time
    now += 30s;
    EXPECT_TRUE(comesToSay(chargeKey, QVariant()));
    driver->letGo();
    EXPECT_TRUE(comesToSay(chargeKey, qint64{3000}));
}

TEST_F(HangingReadsTest, ASlowFileIsReadApartAndShowsAtTheRefreshAfter)
{
    ASSERT_TRUE(comesToSay(cyclesKey, qint64{7}));
    for (const char* cycles : {"8", "9", "10", "11", "12", "13"}) {
        driver->hangAt("cycle_count");
        tree.write("BAT0", "cycle_count", cycles);
        property(cyclesKey);
        driver->letGo();
        EXPECT_TRUE(comesToSay(cyclesKey, QVariant(qint64{std::stoi(cycles)}))) << cycles;
    }
}

TEST_F(HangingReadsTest, AReadingThatWasGivenUpShowsAsSoonAsItIsThere)
{
    ReadingPatience hasty{.withFile = 1h, .first = 1h, .later = 20ms};
    PowerSampler slow(
        tree.path(), [driver = driver](auto... arguments) { return driver->read(arguments...); },
        [this] { return now; }, hasty);
    ASSERT_EQ(slow.sample()->batteryEntry.value(cyclesKey), qint64{7});
    std::vector<QVariant> shown;
    slow.setLateObserver([&] {
        // Twice, as events are answered.
        for (int times = 0; times < 2; ++times) {
            slow.expire();
            shown.push_back(slow.sample()->batteryEntry.value(cyclesKey));
        }
    });
    driver->hangAt("cycle_count");
    tree.write("BAT0", "cycle_count", "8");
    slow.expire();
    ASSERT_EQ(slow.sample()->batteryEntry.value(cyclesKey), qint64{7});
    std::this_thread::sleep_for(20ms);
    driver->letGo();
    EXPECT_TRUE(comesTrue([&] { return !shown.empty(); }));
    QCoreApplication::processEvents();
    // Nor has the second question begun a reading that would be late in its turn.
    EXPECT_EQ(shown, std::vector<QVariant>({qint64{8}, qint64{8}}));
}

/// Too slow to be read with the others ever again.
TEST(SlowFiles, TheValueOfAFileThatStaysSlowIsGiven)
{
    const SupplyTree tree;
    tree.add("BAT0", {{"cycle_count", "7"}});
    SlowFiles files(tree.path(), [](auto... arguments) {
        std::this_thread::sleep_for(30ms);
        return readDescriptor(arguments...);
    });
    files.add("BAT0/cycle_count", SlowFile::Clock::now() - 1s)->deliver(nullptr, -EIO);
    std::array<char, 64> buffer{};
    std::optional<ssize_t> size;
    for (int tries = 0; tries < 3000 && size.value_or(-1) < 0; ++tries) {
        std::this_thread::sleep_for(10ms);
        size = files.insteadOf("BAT0/cycle_count", buffer.data(), buffer.size());
        ASSERT_TRUE(size) << "it counts as quick again";
    }
    EXPECT_EQ(std::string_view(buffer.data(), 2), "7\n");
}

TEST(SlowFiles, TheFolderItselfIsListedAgainHoweverOftenItWasSlow)
{
    const SupplyTree tree;
    SlowFiles files(tree.path(), readDescriptor);
    const auto comesToBeListed = [&] {
        for (int tries = 0; tries < 3000; ++tries) {
            if (!files.insteadOf(tree.path(), nullptr, 0))
                return true;
            std::this_thread::sleep_for(1ms);
        }
        return false;
    };
    for (int times = 1; times <= 6; ++times) {
        files.add(tree.path(), SlowFile::Clock::now() - 1s)->deliver(nullptr, 0);
        EXPECT_TRUE(comesToBeListed()) << times;
    }
}

int warnings = 0;

TEST_F(HangingReadsTest, OneLineInTheLogNamesIt)
{
    warnings = 0;
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            warnings += text.contains(QStringLiteral("BAT0/cycle_count")) ? 1 : 0;
        });
    driver->hangAt("cycle_count");
    ASSERT_TRUE(comesToSay(chargeKey, qint64{3000}));
    for (int refresh = 0; refresh < 20; ++refresh)
        property(chargeKey);
    qInstallMessageHandler(before);
    EXPECT_EQ(warnings, 1);
}

TEST_F(HangingReadsTest, NobodyWaitsForItAtTheEnd)
{
    ASSERT_TRUE(comesToSay(cyclesKey, qint64{7}));
    driver->hangAt("*");
    property(cyclesKey);
}

} // namespace
