#include "platform/recorded/RecordedComputer.h"

#include <gtest/gtest.h>

#include "platform/UserDefaults.h"
#include "tests/platform/recorded/Keys.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QVariantMap fullKeys()
{
    const QVariantMap battery{{latin("A"), 1}, {latin("B"), QVariantMap{{latin("C"), 2}}}};
    const QVariantMap files{{latin("/System/a.plist"), one("Version", latin("1"))},
                            {latin("/b"), QVariantMap()}};
    const QVariantMap databases{{latin("standard"), one("x", 1)},
                                {latin("group.fernhollow.Quindle"), one("y", 2)}};
    return {
        {latin("Registry"), one("AppleSmartBattery", battery)},
        {latin("PowerSources"), QVariantList{one("z", 1)}},
        {latin("AdapterDetails"), one("Watts", 60)},
        {latin("Files"), files},
        {latin("HostName"), latin("name")},
        {latin("Defaults"), databases},
        {latin("LoginItems"), QVariantList{latin("file:///a")}},
        {latin("Replies"), one("F5YW", latin("<xml/>"))},
        {latin("Now"), QDateTime(QDate(2020, 1, 1), QTime(0, 0))},
    };
}

RecordedComputer afterStep(const QStringList& remove, const QVariantMap& keys = {})
{
    RecordedComputer computer(fullKeys());
    computer.enter({remove, keys, {}, 10});
    return computer;
}

RecordedComputer without(const char* path)
{
    return afterStep({latin(path)});
}

TEST(RecordedComputer, KnowsNothingByItself)
{
    const RecordedComputer computer({});
    EXPECT_EQ(computer.registryEntry(latin("AppleSmartBattery")), std::nullopt);
    EXPECT_EQ(computer.powerSources(), std::nullopt);
    EXPECT_EQ(computer.adapterDetails(), std::nullopt);
    EXPECT_EQ(computer.file(latin("/b")), std::nullopt);
    EXPECT_EQ(computer.hostName(), QString());
    EXPECT_EQ(computer.bundle(), std::nullopt);
    EXPECT_TRUE(computer.database(latin("standard")).isEmpty());
    EXPECT_FALSE(computer.isSuiteUnavailable());
    EXPECT_TRUE(computer.loginItems().isEmpty());
    EXPECT_EQ(computer.reply(latin("F5YW")), std::nullopt);
    EXPECT_EQ(computer.now(), std::nullopt);
}

TEST(RecordedComputer, RemovesKeys)
{
    EXPECT_EQ(without("AdapterDetails").adapterDetails(), std::nullopt);
    EXPECT_EQ(without("PowerSources").powerSources(), std::nullopt);
    EXPECT_EQ(without("HostName").hostName(), QString());
    EXPECT_EQ(without("Now").now(), std::nullopt);
    EXPECT_EQ(without("Registry").registryEntry(latin("AppleSmartBattery")), std::nullopt);
}

TEST(RecordedComputer, RemovesInside)
{
    const QString battery = latin("AppleSmartBattery");
    EXPECT_EQ(without("Registry/AppleSmartBattery").registryEntry(battery), std::nullopt);
    EXPECT_EQ(*without("Registry/AppleSmartBattery/B").registryEntry(battery), one("A", 1));
    EXPECT_EQ(without("Registry/AppleSmartBattery/B/C").registryEntry(battery)->value(latin("B")),
              QVariantMap());
    EXPECT_EQ(without("AdapterDetails/Watts").adapterDetails(), QVariantMap());
    EXPECT_TRUE(without("Defaults/standard/x").database(latin("standard")).isEmpty());
    EXPECT_TRUE(without("Defaults/group.fernhollow.Quindle/y").database(groupDatabaseName()).isEmpty());
    EXPECT_EQ(without("Replies/F5YW").reply(latin("F5YW")), std::nullopt);
}

TEST(RecordedComputer, RemovesFilesByTheirPaths)
{
    const QString path = latin("/System/a.plist");
    EXPECT_EQ(without("Files//System/a.plist").file(path), std::nullopt);
    EXPECT_EQ(without("Files/System/a.plist").file(path), std::nullopt);
    EXPECT_EQ(without("Files//System/a.plist/Version").file(path), QVariantMap());
    EXPECT_EQ(without("Files/System/a.plist/Version").file(path), QVariantMap());
    EXPECT_EQ(without("Files//System").file(path), one("Version", latin("1")));
}

TEST(RecordedComputer, PassesOverWhatIsNotThere)
{
    for (const char* path :
         {"", "/", "Nothing", "Registry/", "Registry/None", "Registry/AppleSmartBattery/None", "HostName/x",
          "PowerSources/0", "AppleSmartBattery", "Files/", "registry"}) {
        const RecordedComputer computer = without(path);
        EXPECT_EQ(computer.registryEntry(latin("AppleSmartBattery"))->size(), 2) << path;
        EXPECT_EQ(computer.powerSources()->size(), 1) << path;
        EXPECT_TRUE(computer.file(latin("/b"))) << path;
        EXPECT_EQ(computer.hostName(), latin("name")) << path;
    }
}

TEST(RecordedComputer, LaysRegistryAndSettingsOver)
{
    const RecordedComputer computer =
        afterStep({}, {{latin("Registry"),
                        QVariantMap{{latin("AppleSmartBattery"), one("A", 5)}, {latin("New"), one("N", 1)}}},
                       {latin("Defaults"), one("standard", one("more", 3))}});
    const QVariantMap battery = *computer.registryEntry(latin("AppleSmartBattery"));
    EXPECT_EQ(battery.value(latin("A")), QVariant(5));
    EXPECT_TRUE(battery.contains(latin("B")));
    EXPECT_EQ(*computer.registryEntry(latin("New")), one("N", 1));
    EXPECT_EQ(computer.database(latin("standard")), (QVariantMap{{latin("x"), 1}, {latin("more"), 3}}));
    EXPECT_EQ(computer.database(groupDatabaseName()), one("y", 2));
}

TEST(RecordedComputer, ReplacesAllElseWhole)
{
    const RecordedComputer computer = afterStep({}, {{latin("AdapterDetails"), one("Name", latin("Brick"))},
                                                     {latin("Files"), one("/c", QVariantMap())},
                                                     {latin("PowerSources"), QVariantList()},
                                                     {latin("Replies"), QVariantMap()}});
    EXPECT_EQ(*computer.adapterDetails(), one("Name", latin("Brick")));
    EXPECT_EQ(computer.file(latin("/b")), std::nullopt);
    EXPECT_TRUE(computer.file(latin("/c")));
    EXPECT_TRUE(computer.powerSources()->isEmpty());
    EXPECT_EQ(computer.reply(latin("F5YW")), std::nullopt);
}

TEST(RecordedComputer, RemovesBeforeItAdds)
{
    const RecordedComputer computer = afterStep(
        {latin("Registry/AppleSmartBattery"), latin("HostName")},
        {{latin("Registry"), one("AppleSmartBattery", one("A", 7))}, {latin("HostName"), latin("new")}});
    EXPECT_EQ(*computer.registryEntry(latin("AppleSmartBattery")), one("A", 7));
    EXPECT_EQ(computer.hostName(), latin("new"));
}

TEST(RecordedComputer, StepsAndTheProgramWriteTheSameSettings)
{
    RecordedComputer computer(fullKeys());
    computer.setInDatabase(latin("standard"), latin("own"), true);
    computer.enter(
        {{latin("Defaults/standard/x")}, one("Defaults", one("standard", one("own", false))), {}, 10});
    EXPECT_EQ(computer.database(latin("standard")), one("own", false));
}

} // namespace
