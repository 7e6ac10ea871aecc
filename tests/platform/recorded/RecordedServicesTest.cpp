#include <gtest/gtest.h>

#include "platform/recorded/OverlaidUserDefaults.h"
#include "platform/recorded/RecordedPlatform.h"
#include "tests/platform/recorded/Keys.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

class ProgramBundle : public Bundle
{
public:
    QString path() const override { return latin("/program"); }
    std::optional<QVariantMap> infoDictionary() const override { return one("CFBundleVersion", latin("1")); }
};

class RecordedServices : public testing::Test
{
protected:
    RecordedPlatform& on(const QVariantMap& keys)
    {
        m_platform = std::make_unique<RecordedPlatform>(keys, m_bundle);
        return *m_platform;
    }

    void enter(const QStringList& remove, const QVariantMap& keys = {})
    {
        m_platform->computer.enter({remove, keys, {}, 10});
    }

private:
    ProgramBundle m_bundle;
    std::unique_ptr<RecordedPlatform> m_platform;
};

TEST_F(RecordedServices, RegistryReadsThroughAHandle)
{
    IORegistry& registry = on(one("Registry", one("AppleSmartBattery", one("A", 1)))).registry;
    const RegistryObject byName = registry.serviceMatchingName(latin("AppleSmartBattery"));
    const RegistryObject byClass = registry.serviceMatchingClass(latin("AppleSmartBattery"));
    EXPECT_NE(byName, 0U);
    EXPECT_NE(byName, byClass);
    EXPECT_EQ(registry.property(byName, latin("A")), QVariant(1));
    EXPECT_EQ(registry.property(byName, latin("B")), QVariant());
    EXPECT_EQ(registry.properties(byClass), one("A", 1));
    EXPECT_EQ(registry.serviceMatchingName(latin("None")), 0U);
    EXPECT_EQ(registry.property(0, latin("A")), QVariant());
}

TEST_F(RecordedServices, RegistryHandleOutlivesItsEntry)
{
    IORegistry& registry = on(one("Registry", one("AppleSmartBattery", one("A", 1)))).registry;
    const RegistryObject handle = registry.serviceMatchingName(latin("AppleSmartBattery"));
    enter({latin("Registry/AppleSmartBattery")});
    EXPECT_TRUE(registry.properties(handle).isEmpty());
    EXPECT_EQ(registry.serviceMatchingName(latin("AppleSmartBattery")), 0U);
    EXPECT_EQ(registry.release(handle), kIOReturnSuccess);
    EXPECT_NE(registry.release(handle), kIOReturnSuccess);
    EXPECT_NE(registry.release(0), kIOReturnSuccess);
}

TEST_F(RecordedServices, RegistryEntryThatComesLater)
{
    IORegistry& registry = on({}).registry;
    EXPECT_EQ(registry.serviceMatchingName(latin("AppleSmartBattery")), 0U);
    enter({}, one("Registry", one("AppleSmartBattery", one("A", 1))));
    EXPECT_NE(registry.serviceMatchingName(latin("AppleSmartBattery")), 0U);
}

TEST_F(RecordedServices, NoSourcesAreNotNoService)
{
    EXPECT_EQ(on({}).powerSources.sourceCount(), std::nullopt);
    EXPECT_EQ(on(one("PowerSources", QVariantList())).powerSources.sourceCount(), 0);
    PowerSources& sources = on(one("PowerSources", QVariantList{one("a", 1), one("b", 2)})).powerSources;
    EXPECT_EQ(sources.sourceCount(), 2);
    EXPECT_EQ(sources.description(1), one("b", 2));
    EXPECT_EQ(sources.description(2), std::nullopt);
    EXPECT_EQ(sources.description(-1), std::nullopt);
    EXPECT_EQ(sources.externalAdapterDetails(), std::nullopt);
}

TEST_F(RecordedServices, SettingsStayInMemory)
{
    UserDefaultsDatabases& databases =
        on(one("Defaults", one("group.fernhollow.Quindle", one("x", latin("2"))))).userDefaults;
    UserDefaults* group = databases.suite(groupDatabaseName());
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->integer(latin("x")), 2);
    databases.standard().setInteger(latin("y"), 3);
    enter({latin("Defaults/group.fernhollow.Quindle/x")});
    EXPECT_EQ(group->object(latin("x")), QVariant());
    EXPECT_EQ(databases.standard().dictionaryRepresentation(), one("y", QVariant::fromValue<qint64>(3)));
    EXPECT_EQ(databases.suite(latin("another")), nullptr);
}

TEST_F(RecordedServices, SuiteMayBeUnavailable)
{
    EXPECT_EQ(on(one("SuiteUnavailable", true)).userDefaults.suite(groupDatabaseName()), nullptr);
    EXPECT_NE(on(one("SuiteUnavailable", false)).userDefaults.suite(groupDatabaseName()), nullptr);
}

TEST_F(RecordedServices, OverlaidSettingsLeaveTheOthersAlone)
{
    RecordedUserDefaultsDatabases& below = on(one("Defaults", one("standard", one("x", 1)))).userDefaults;
    OverlaidUserDefaultsDatabases overlaid(below);
    overlaid.standard().setObject(latin("y"), 2);
    overlaid.suite(groupDatabaseName())->setObject(latin("z"), 3);
    EXPECT_EQ(overlaid.standard().object(latin("x")), QVariant(1));
    EXPECT_EQ(overlaid.standard().dictionaryRepresentation(),
              (QVariantMap{{latin("x"), 1}, {latin("y"), 2}}));
    EXPECT_EQ(overlaid.suite(groupDatabaseName())->object(latin("z")), QVariant(3));
    EXPECT_EQ(below.standard().dictionaryRepresentation(), one("x", 1));
    below.standard().setObject(latin("x"), 5);
    EXPECT_EQ(overlaid.standard().object(latin("x")), QVariant(5));
}

TEST_F(RecordedServices, OverlaidSettingsWithoutSuite)
{
    OverlaidUserDefaultsDatabases overlaid(on(one("SuiteUnavailable", true)).userDefaults);
    EXPECT_EQ(overlaid.suite(groupDatabaseName()), nullptr);
}

TEST_F(RecordedServices, TimeStandsStillUntilItIsRemoved)
{
    const QDateTime past(QDate(2001, 2, 3), QTime(4, 5));
    const Clock& clock = on(one("Now", past)).clock;
    EXPECT_EQ(clock.now(), past);
    enter({latin("Now")});
    EXPECT_LT(past, clock.now());
}

TEST_F(RecordedServices, BundleIsReplacedWhole)
{
    EXPECT_EQ(on({}).bundle.path(), latin("/program"));
    EXPECT_TRUE(on({}).bundle.infoDictionary());
    EXPECT_EQ(on(one("Bundle", QVariantMap())).bundle.path(), QString());
    EXPECT_EQ(on(one("Bundle", QVariantMap())).bundle.infoDictionary(), std::nullopt);
    EXPECT_EQ(on(one("Bundle", one("Path", latin("/x")))).bundle.path(), latin("/x"));
    EXPECT_EQ(on(one("Bundle", one("Info", one("k", 1)))).bundle.infoDictionary(), one("k", 1));
}

TEST_F(RecordedServices, NotificationsAreHeardAtOnce)
{
    RecordedPlatform& platform = on({});
    QStringList heard;
    platform.distributedNotificationCenter.addObserver(latin("n"), [&] { heard.append(latin("n")); });
    platform.distributedNotificationCenter.addObserver(latin("n"), [&] { heard.append(latin("again")); });
    platform.workspaceNotifications.addWillSleepObserver([&] { heard.append(latin("sleep")); });
    platform.workspaceNotifications.addDidWakeObserver([&] { heard.append(latin("wake")); });
    platform.distributedNotificationCenter.post(latin("n"));
    platform.distributedNotificationCenter.post(latin("other"));
    platform.workspaceNotifications.wake();
    platform.workspaceNotifications.sleep();
    EXPECT_EQ(heard, (QStringList{latin("n"), latin("again"), latin("wake"), latin("sleep")}));
}

TEST_F(RecordedServices, TimersFireWhenTold)
{
    RecordedRunLoop& loop = on({}).runLoop;
    int fired = 0;
    const auto timer = loop.scheduleRepeatingTimer(5.0, 2.5, [&] { ++fired; });
    ASSERT_EQ(loop.timers().size(), 1U);
    EXPECT_EQ(loop.timers()[0]->interval(), 5.0);
    EXPECT_EQ(loop.timers()[0]->tolerance(), 2.5);
    EXPECT_EQ(fired, 0);
    loop.timers()[0]->fire();
    timer->invalidate();
    loop.timers()[0]->fire();
    EXPECT_EQ(fired, 1);
}

TEST_F(RecordedServices, StatusItemIsRecorded)
{
    RecordedStatusBar& bar = on({}).statusBar;
    const auto item = bar.statusItemWithLength(variableStatusItemLength);
    item->setTitle(latin("a"));
    item->setTitle(latin("b"));
    item->setMenuBarFontSize(12);
    item->setToolTipText(latin("tip"));
    const StatusItemRecord& record = *bar.lastItem();
    EXPECT_EQ(record.length, variableStatusItemLength);
    EXPECT_EQ(item->title(), latin("b"));
    EXPECT_EQ(record.titlesSet, (QStringList{latin("a"), latin("b")}));
    EXPECT_EQ(record.fontSize, 12.0);
    EXPECT_EQ(record.toolTip, latin("tip"));
    EXPECT_EQ(item->image(), nullptr);
}

TEST_F(RecordedServices, LoginItems)
{
    RecordedLoginItems& items =
        on(one("LoginItems", QVariantList{latin("file:///a"), latin("file:///b")})).loginItems;
    const auto snapshot = items.snapshot();
    ASSERT_TRUE(snapshot);
    ASSERT_EQ(snapshot->size(), 2U);
    items.insertBeforeFirst(latin("file:///new"));
    items.remove((*snapshot)[0]);
    ASSERT_EQ(items.snapshot()->size(), 2U);
    EXPECT_EQ(items.resolve(items.snapshot()->at(0)), latin("file:///new"));
    items.setEnabled(latin("com.example"), true);
    EXPECT_EQ(items.isEnabled(latin("com.example")), true);
    EXPECT_EQ(items.isEnabled(latin("other")), std::nullopt);
}

TEST_F(RecordedServices, OnlyKnownCodesAreAnswered)
{
    RecordedUrlSession& session = on(one("Replies", one("F5YW", latin("<a/>")))).urlSession;
    EXPECT_EQ(session.contents(latin("http:///sp/product?cc=F5YW&lang=en_US")), QByteArray("<a/>"));
    EXPECT_EQ(session.contents(latin("http://host/sp/product?cc=XXXX&lang=en_US")), std::nullopt);
    EXPECT_EQ(session.contents(latin("https://host/F5YW")), std::nullopt);
    bool answered = false;
    session.post(latin("https://host/"), "body", [&](int, const QByteArray&) { answered = true; });
    EXPECT_FALSE(answered);
    ASSERT_EQ(session.posts().size(), 1U);
    EXPECT_EQ(session.posts()[0].second, QByteArray("body"));
}

TEST_F(RecordedServices, WorkspaceAndApplicationKeepWhatTheyAreAsked)
{
    RecordedPlatform& platform = on({});
    platform.workspace.launchApplication(latin("/a"));
    EXPECT_EQ(platform.workspace.takeLaunched(), QStringList(latin("/a")));
    EXPECT_TRUE(platform.workspace.takeLaunched().isEmpty());
    platform.application.terminate();
    platform.application.activateIgnoringOtherApplications();
    EXPECT_EQ(platform.application.terminations(), 1);
    EXPECT_EQ(platform.application.activations(), 1);
}

} // namespace
