// Whole days of a battery, and the exact list of what the user gets to see.

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/warnings/WarningStream.h"

using namespace quindle;

namespace {

struct WarningDayTest : testing::Test, WarningStream
{
    /// The rest of the day until that hour.
    void passUntil(int hour) { pass(static_cast<double>(hour * 3600 - reading.moment)); }
};

TEST_F(WarningDayTest, DischargedAndChargedWithNoise)
{
    noise = 0.6;
    reading.percent = 95;
    passMinutes(5 * 60, 12); // to 13:00
    passMinutes(60, 4);      // a film, to 14:00
    charge();
    passMinutes(3 * 60, 100); // to 17:00
    reading.state = SampleState::Full;
    passUntil(20);
    discharge();
    passMinutes(4 * 60, 30); // to midnight
    sleep(8 * 3600, 18);
    passMinutes(10, 17);
    EXPECT_EQ(lines(), linesOf("12:33:20 show Battery low: 20% left\n"
                               "13:19:40 replace Battery very low: 10% left\n"
                               "13:57:00 replace Battery nearly empty!: 5% left\n"
                               "14:00:10 withdraw\n"
                               "17:00:10 show Battery full: 99%\n"
                               "20:00:10 withdraw\n"
                               "32:01:00 show Battery low: 19% left\n"));
}

TEST_F(WarningDayTest, SleepAndASwappedBattery)
{
    passMinutes(120, 22); // to 10:00
    sleep(6 * 3600, 6);   // 16:00
    passMinutes(5, 5.5);
    sleep(60, 5.5); // off for a moment, another battery put in
    reading.battery = QStringLiteral("two");
    reading.percent = 97;
    passMinutes(120, 60); // 18:06
    sleep(60, 60);        // and the first one again, charged elsewhere a little
    reading.battery = QStringLiteral("one");
    reading.percent = 9;
    passMinutes(3);
    charge();
    passMinutes(5 * 60, 90);
    EXPECT_EQ(lines(), linesOf("16:01:00 show Battery very low: 6% left\n"
                               "16:06:10 withdraw\n"
                               "18:08:00 show Battery very low: 9% left\n"
                               "18:10:10 withdraw\n"));
}

TEST_F(WarningDayTest, PluggedInAllDay)
{
    reading.state = SampleState::Full;
    reading.percent = 100;
    noise = 0.4;
    passMinutes(12 * 60, 98);
    charge();
    passMinutes(60, 100);
    reading.state = SampleState::Full;
    passMinutes(11 * 60);
    EXPECT_EQ(lines(), QStringList());
}

TEST_F(WarningDayTest, AWornBatteryUnderLoad)
{
    reading.percent = 100;
    for (int minute = 40; minute > 0; --minute) {
        reading.minutesToEmpty = minute;
        passMinutes(1, minute * 2);
    }
    EXPECT_EQ(lines(), linesOf("08:20:20 show Battery low: About 20 minutes left\n"
                               "08:30:20 replace Battery very low: About 10 minutes left\n"
                               "08:35:20 replace Battery nearly empty!: About 5 minutes left\n"));
}

} // namespace
