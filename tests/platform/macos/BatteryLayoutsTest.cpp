#include "platform/macos/BatteryLayouts.h"

#include <cmath>

#include <gtest/gtest.h>

#include "plist/PropertyList.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/TestData.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

using Figure = std::optional<qint64>;

constexpr std::nullopt_t none = std::nullopt;

/// What a person reads off a dump: mAh and mA. On Apple silicon the charge is the dump's percentage of the
/// full capacity, rounded up.
struct DumpRow
{
    const char* dump;
    Figure charge;
    Figure full;
    Figure design;
    Figure current;
    Figure instantCurrent;
};

// clang-format off
const DumpRow dumpRows[] = {
    // Intel: mAh at the top. 63466, 60719 and 64754 are 16 bits.
    {"macbook8-1-2015",                        4237, 4600, 5297, -1735, -2070},
    {"macbook9-1-2016",                        2157, 5348, 5550, -618, -406},
    {"macbookair-2012-full",                   7171, 7171, 7150, 0, 0},
    {"macbookair3-1-2010",                     2453, 4484, 4680, -1154, -1145},
    {"macbookair4-1-2011",                     3786, 4226, 4680, -1284, -1266},
    {"macbookpro-retina15-2012",               6917, 8112, 8460, -1532, -1438},
    {"macbookpro11-3-2013-heavy-load",         2721, 7995, 8440, -5496, -4817},
    {"macbookpro12-1-2015-blog",               4761, 5889, 6559, -1053, -1092},
    {"macbookpro13-3-2016",                    1595, 6453, 6669, -788, -782},
    {"macbookpro14-1-2017-charging",           2031, 4621, 4790, 3335, 2729},
    {"macbookpro15-1-2018",                    6577, 6997, 7336, -3706, -3469},
    {"macbookpro15-2011-charging-error-noted", 5761, 6806, 6900, 2486, 2465},
    {"macbookpro8-1-2011-full",                5400, 5400, 5770, 258, 0},
    {"macbookpro9-1-2012-new",                 5561, 7061, 6900, -1337, -1583},
    {"macbookpro9-2-2012",                     5743, 5773, 5770, 0, 0},
    // Apple silicon: the full charge is AppleRawMaxCapacity.
    {"macbookpro17-1-m1-2020-full",            5154, 5154, 5103, 0, 0},
    {"macbookpro-m1pro-macos15",               3366, 5704, 6075, 5114, 5114},    // 59 %: 3365.4
    {"macbookpro-m2max-macos15-low",           454, 5664, 6075, -540, -540},     // 8 %: 453.1
    {"macbookair-m2-onbattery-trimmed",        3103, 3977, 4563, -587, -587},    // 78 %: 3102.1
    {"macbookpro-m2pro-macos26",               4624, 5779, 6075, 0, 0},          // 80 %: 4623.2
    {"macbookair-m4-macos26",                  3372, 4215, 4629, 0, 0},          // 80 %: 3372.0
    {"macbookpro-m4pro-macos15-onbattery",     6068, 6068, 6249, 0, 0},          // 100 %, the gauge says 5812
    {"macbookpro16-m4max-macos26",             6663, 8542, 8579, 3702, 3702},    // 78 %: 6662.8
    {"macbookpro-m5-macos26",                  5018, 6351, 6249, 0, 0},          // 79 %: 5017.3
    // macOS 27: full charge and design in BatteryData.
    {"macbookair-m2-macos27-charging",         1506, 4427, 4563, 2019, 2019},    // 34 %: 1505.2
    // Parts of dumps: what is not there stays so.
    {"macbookpro-m4pro-16-70w-beginning",      70, none, none, none, none},
    {"macbookpro18-3-m1pro-charging-45w",      none, none, 8400, 1926, 1926},
};
// clang-format on

constexpr const char* keys[] = {"CurrentCapacity", "MaxCapacity", "DesignCapacity", "Amperage",
                                "InstantAmperage"};

QVariantList entriesOf(const char* dump)
{
    const auto list = propertyListFromFile(testDataFolder() + u("/ioreg/%1.plist").arg(u(dump)));
    EXPECT_TRUE(list.has_value()) << dump;
    return list.value_or(QVariant()).toList();
}

QVariant valueOf(const Figure& figure)
{
    return figure ? QVariant(*figure) : QVariant();
}

TEST(BatteryLayouts, DumpsOfRealMacs)
{
    for (const DumpRow& row : dumpRows) {
        const QVariantMap entry = entriesOf(row.dump).value(0).toMap();
        EXPECT_FALSE(isGhostBattery(entry)) << row.dump;
        const QVariantMap laidOut = withModelUnits(entry);
        const Figure figures[] = {row.charge, row.full, row.design, row.current, row.instantCurrent};
        for (std::size_t index = 0; index < std::size(keys); ++index)
            EXPECT_EQ(laidOut.value(u(keys[index])), valueOf(figures[index]))
                << row.dump << ' ' << keys[index];
    }
}

TEST(BatteryLayouts, EverythingElseOfADumpStaysAsItIs)
{
    for (const DumpRow& row : dumpRows) {
        QVariantMap before = entriesOf(row.dump).value(0).toMap();
        QVariantMap after = withModelUnits(before);
        for (const char* key : keys) {
            EXPECT_TRUE(hasLayout(u(key)));
            before.remove(u(key));
            after.remove(u(key));
        }
        EXPECT_EQ(after, before) << row.dump;
        for (auto value = before.cbegin(); value != before.cend(); ++value)
            EXPECT_FALSE(hasLayout(value.key())) << value.key().toStdString();
    }
}

TEST(BatteryLayouts, MacsWithoutABattery)
{
    EXPECT_TRUE(entriesOf("imac18-3-no-battery").isEmpty());
    EXPECT_TRUE(entriesOf("macmini8-1-no-battery").isEmpty());
    EXPECT_TRUE(isGhostBattery(entriesOf("macstudio-m4max-ghost-battery").value(0).toMap()));
}

TEST(BatteryLayouts, AGhostIsWhatIsNotInstalledOrAllZero)
{
    const QVariantMap zeros{
        {u("CurrentCapacity"), qint64{0}}, {u("MaxCapacity"), qint64{0}}, {u("Voltage"), qint64{0}}};
    EXPECT_TRUE(isGhostBattery(zeros));
    // Some say nothing of voltage and charge.
    EXPECT_TRUE(isGhostBattery({{u("MaxCapacity"), qint64{0}}}));
    EXPECT_TRUE(isGhostBattery({{u("BatteryInstalled"), qint64{0}}}));
    EXPECT_TRUE(isGhostBattery({{u("BatteryInstalled"), false}, {u("MaxCapacity"), qint64{100}}}));
    // A gauge that cannot be read for a moment, and parts of dumps, are batteries.
    QVariantMap unread = zeros;
    unread.insert(u("BatteryInstalled"), true);
    EXPECT_FALSE(isGhostBattery(unread));
    for (const char* key : {"CurrentCapacity", "MaxCapacity", "Voltage", "DesignCapacity",
                            "AppleRawMaxCapacity", "NominalChargeCapacity"}) {
        QVariantMap part = zeros;
        part.insert(u(key), qint64{1});
        EXPECT_FALSE(isGhostBattery(part)) << key;
        part.insert(u(key), u("none"));
        EXPECT_EQ(isGhostBattery(part), !zeros.contains(u(key))) << key;
    }
    QVariantMap part = zeros;
    part.insert(u("BatteryData"), QVariantMap{{u("DesignCapacity"), qint64{4563}}});
    EXPECT_FALSE(isGhostBattery(part));
    part = zeros;
    part.remove(u("MaxCapacity"));
    EXPECT_FALSE(isGhostBattery(part));
    EXPECT_FALSE(isGhostBattery({}));
    EXPECT_FALSE(isGhostBattery({{u("BatteryInstalled"), u("No")}}));
}

/// An Apple silicon Mac at 50 %, to which a case adds what it is about.
QVariantMap percentages(QVariantMap entry)
{
    entry.insert(u("CurrentCapacity"), qint64{50});
    entry.insert(u("MaxCapacity"), qint64{100});
    return entry;
}

QVariantMap data(const char* key, const QVariant& value)
{
    return {{u("BatteryData"), QVariantMap{{u(key), value}}}};
}

TEST(BatteryLayouts, WhereTheFullChargeIsKept)
{
    const QString raw = u("AppleRawMaxCapacity");
    const QString nominal = u("NominalChargeCapacity");
    const QVariantMap ofData{{u("FullChargeCapacity"), qint64{4000}}, {nominal, qint64{1000}}};
    QVariantMap entry =
        percentages({{raw, qint64{5000}}, {u("BatteryData"), ofData}, {nominal, qint64{2000}}});
    const auto full = [&entry] { return withModelUnits(entry).value(u("MaxCapacity")); };
    EXPECT_EQ(full(), QVariant(qint64{5000}));
    entry.insert(raw, qint64{0}); // a gauge that cannot be read
    EXPECT_EQ(full(), QVariant(qint64{4000}));
    entry.insert(raw, u("5000"));
    EXPECT_EQ(full(), QVariant(qint64{4000}));
    entry.insert(u("BatteryData"), QVariantMap{{nominal, qint64{1000}}});
    EXPECT_EQ(full(), QVariant(qint64{2000}));
    entry.remove(nominal);
    EXPECT_EQ(full(), QVariant(qint64{1000}));
    entry.insert(u("BatteryData"), u("no dictionary"));
    EXPECT_EQ(full(), QVariant(qint64{100}));
}

/// Entries as other Macs may have them, and what a person reads off.
struct EntryRow
{
    const char* mac;
    QVariantMap entry;
    Figure charge;
    Figure full;
    Figure design;
};

TEST(BatteryLayouts, OtherMacs)
{
    const auto n = [](qint64 number) { return QVariant(number); };
    const EntryRow rows[] = {
        {"old Intel, which repeats itself in a dictionary",
         {{u("CurrentCapacity"), n(3100)},
          {u("MaxCapacity"), n(4200)},
          {u("DesignCapacity"), n(5100)},
          {u("LegacyBatteryInfo"), QVariantMap{{u("Capacity"), n(4200)}, {u("Current"), n(3100)}}}},
         3100,
         4200,
         5100},
        {"late Intel, whose gauge agrees",
         {{u("CurrentCapacity"), n(5000)},
          {u("MaxCapacity"), n(5500)},
          {u("AppleRawMaxCapacity"), n(5500)},
          {u("AppleRawCurrentCapacity"), n(5000)},
          {u("DesignCapacity"), n(6000)}},
         5000,
         5500,
         6000},
        {"Apple silicon with all but the gauge's own capacity",
         {{u("CurrentCapacity"), n(50)},
          {u("MaxCapacity"), n(100)},
          {u("AppleRawCurrentCapacity"), n(2400)},
          {u("NominalChargeCapacity"), n(5000)},
          {u("DesignCapacity"), n(5200)}},
         2500,
         5000,
         5200},
        {"everything in the inner dictionary",
         {{u("CurrentCapacity"), n(7)},
          {u("MaxCapacity"), n(100)},
          {u("BatteryData"),
           QVariantMap{{u("FullChargeCapacity"), n(4000)}, {u("DesignCapacity"), n(4563)}}}},
         280,
         4000,
         4563},
        {"percentages as reals",
         {{u("CurrentCapacity"), 50.0}, {u("MaxCapacity"), 100.0}, {u("AppleRawMaxCapacity"), 4000.0}},
         2000,
         4000,
         none},
        {"empty",
         {{u("CurrentCapacity"), n(0)}, {u("MaxCapacity"), n(100)}, {u("AppleRawMaxCapacity"), n(4000)}},
         0,
         4000,
         none},
        {"only inside, and no percentage to lay out",
         {{u("BatteryData"), QVariantMap{{u("FullChargeCapacity"), n(4000)}, {u("CycleCount"), n(12)}}}},
         none,
         none,
         none},
        {"without a charge",
         {{u("MaxCapacity"), n(100)}, {u("AppleRawMaxCapacity"), n(4000)}},
         none,
         4000,
         none},
        {"capacities beyond any battery",
         {{u("CurrentCapacity"), n(50)}, {u("MaxCapacity"), n(100)}, {u("AppleRawMaxCapacity"), n(-1)}},
         50,
         100,
         none},
    };
    for (const EntryRow& row : rows) {
        const QVariantMap laidOut = withModelUnits(row.entry);
        EXPECT_FALSE(isGhostBattery(row.entry)) << row.mac;
        const Figure figures[] = {row.charge, row.full, row.design};
        for (std::size_t index = 0; index < std::size(figures); ++index)
            EXPECT_EQ(laidOut.value(u(keys[index])), valueOf(figures[index]))
                << row.mac << ' ' << keys[index];
        EXPECT_FALSE(laidOut.contains(u("CycleCount"))) << row.mac;
    }
}

TEST(BatteryLayouts, WithoutAFullChargePercentagesStay)
{
    const QVariantMap entry = percentages({{u("DesignCapacity"), qint64{5000}}});
    EXPECT_EQ(withModelUnits(entry), entry);
}

TEST(BatteryLayouts, IntelStaysInMilliampereHours)
{
    // An old battery whose gauge has a second opinion, and one that holds next to nothing.
    for (const qint64 full : {qint64{101}, qint64{5000}}) {
        const QVariantMap entry{{u("CurrentCapacity"), full / 2},
                                {u("MaxCapacity"), full},
                                {u("AppleRawMaxCapacity"), full + 100},
                                {u("DesignCapacity"), qint64{6000}}};
        EXPECT_EQ(withModelUnits(entry), entry);
    }
    const QVariantMap worn{{u("CurrentCapacity"), qint64{33}},
                           {u("MaxCapacity"), qint64{87}},
                           {u("AppleRawMaxCapacity"), qint64{87}}};
    EXPECT_EQ(withModelUnits(worn), worn);
}

TEST(BatteryLayouts, EveryPercentageIsTheSystemsOwn)
{
    for (const qint64 full : {qint64{201}, qint64{3977}, qint64{4215}, qint64{5779}, qint64{8579}}) {
        for (qint64 percent = 0; percent <= 100; ++percent) {
            QVariantMap entry = percentages({{u("AppleRawMaxCapacity"), full}});
            entry.insert(u("CurrentCapacity"), percent);
            const double charge = withModelUnits(entry).value(u("CurrentCapacity")).toDouble();
            const double shown = charge / static_cast<double>(full) * 100.0;
            EXPECT_EQ(std::floor(shown), static_cast<double>(percent)) << full;
            EXPECT_EQ(std::round(shown), static_cast<double>(percent)) << full;
        }
    }
}

TEST(BatteryLayouts, AChargeThatIsNoPercentageStaysAsItIs)
{
    for (const QVariant& charge :
         {QVariant(qint64{-1}), QVariant(qint64{101}), QVariant(u("half")), QVariant()}) {
        QVariantMap entry = percentages({{u("AppleRawMaxCapacity"), qint64{5000}}});
        entry.insert(u("CurrentCapacity"), charge);
        EXPECT_EQ(withModelUnits(entry).value(u("CurrentCapacity")), charge);
        EXPECT_EQ(withModelUnits(entry).value(u("MaxCapacity")), QVariant(qint64{5000}));
    }
}

TEST(BatteryLayouts, DesignCapacityFromTheTopOrFromBatteryData)
{
    QVariantMap entry = data("DesignCapacity", qint64{4563});
    const auto design = [&entry] { return withModelUnits(entry).value(u("DesignCapacity")); };
    EXPECT_EQ(design(), QVariant(qint64{4563}));
    entry.insert(u("DesignCapacity"), qint64{6000});
    EXPECT_EQ(design(), QVariant(qint64{6000}));
    entry.insert(u("DesignCapacity"), qint64{0});
    EXPECT_EQ(design(), QVariant(qint64{4563}));
    entry = data("DesignCapacity", qint64{0});
    EXPECT_FALSE(design().isValid());
}

TEST(BatteryLayouts, CurrentsHaveTheirSigns)
{
    const struct
    {
        QVariant reported;
        QVariant signedValue;
    } currents[] = {
        {qint64{32767}, qint64{32767}},
        {qint64{32768}, qint64{-32768}},
        {qint64{63466}, qint64{-2070}},
        {qint64{65535}, qint64{-1}},
        {qint64{65536}, qint64{65536}},
        {qint64{2147483647}, qint64{2147483647}},
        {qint64{2147483648}, qint64{-2147483648}},
        {qint64{4294966000}, qint64{-1296}},
        {qint64{4294967295}, qint64{-1}},
        {qint64{4294967296}, qint64{4294967296}},
        {4294966000.0, qint64{-1296}},
        {qint64{-5496}, qint64{-5496}},
        {quint64{18446744073709546120U}, qint64{-5496}},
        {QVariant(u("much")), QVariant(u("much"))},
        {QVariant(), QVariant()},
    };
    for (const auto& [reported, signedValue] : currents) {
        for (const QString& key : {u("Amperage"), u("InstantAmperage")}) {
            const QVariantMap laidOut = withModelUnits({{key, reported}});
            EXPECT_EQ(laidOut.value(key), signedValue);
            EXPECT_EQ(laidOut.size(), 1);
        }
        EXPECT_EQ(withModelUnits({{u("CycleCount"), reported}}).value(u("CycleCount")), reported);
    }
}

} // namespace
