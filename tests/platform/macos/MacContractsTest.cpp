#include <gtest/gtest.h>

#include "platform/macos/MacPowerSources.h"
#include "platform/macos/MacRegistry.h"
#include "platform/macos/MacRunLoop.h"
#include "platform/macos/MacUserDefaults.h"
#include "tests/platform/IORegistryContract.h"
#include "tests/platform/UserDefaultsContract.h"
#include "tests/platform/macos/FakeSystem.h"
#include "tests/support/Texts.h"

namespace quindle {

class MacBatteries
{
public:
    IORegistry& registry() { return m_registry; }
    PowerSources& powerSources() { return m_powerSources; }

    void plugIn(qint64 milliampHours)
    {
        m_registryCalls.entries[u("AppleSmartBattery")] = {{u("CurrentCapacity"), milliampHours}};
        m_powerCalls.listed = {{{u("Name"), u("InternalBattery-0")}}};
    }

    void pullOut()
    {
        m_registryCalls.entries.clear();
        m_powerCalls.listed.emplace();
    }

private:
    FakeRegistryCalls m_registryCalls;
    FakePowerCalls m_powerCalls;
    MacRegistry m_registry{m_registryCalls};
    MacPowerSources m_powerSources{m_powerCalls};
};

class MacDatabases
{
public:
    UserDefaultsDatabases& databases() { return m_databases; }

private:
    FakeDomains m_domains;
    MacUserDefaultsDatabases m_databases{[this](const QString& name) { return m_domains.open(name); },
                                         m_domains.open(u("own")), u("own"), u("/Users/me")};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Mac, IORegistryContract, MacBatteries);
INSTANTIATE_TYPED_TEST_SUITE_P(Mac, UserDefaultsContract, MacDatabases);

namespace {

TEST(MacRegistry, EveryNumberIsGivenBackAsOftenAsItWasGiven)
{
    FakeRegistryCalls calls;
    calls.entries[u("a")] = {};
    {
        MacRegistry registry(calls);
        registry.serviceMatchingName(u("a"));
        registry.release(registry.serviceMatchingClass(u("a")));
        EXPECT_EQ(calls.held.at(100), 1);
    }
    EXPECT_EQ(calls.held.at(100), 0);
}

TEST(MacPowerSources, AServiceThatCannotBeAskedIsNotAnEmptyList)
{
    FakePowerCalls calls;
    MacPowerSources sources(calls);
    calls.listed.reset();
    EXPECT_EQ(sources.sourceCount(), std::nullopt);
    // One that has gone meanwhile has no description.
    calls.listed = {{}, {{u("Name"), u("b")}}};
    EXPECT_EQ(sources.sourceCount(), 1);
    EXPECT_EQ(sources.description(0)->value(u("Name")), QVariant(u("b")));
    EXPECT_EQ(sources.description(1), std::nullopt);
}

TEST(MacPowerSources, AnAdapterWithoutDetailsIsNone)
{
    FakePowerCalls calls;
    MacPowerSources sources(calls);
    EXPECT_EQ(sources.externalAdapterDetails(), std::nullopt);
    calls.details = {{u("Watts"), qint64{67}}};
    EXPECT_EQ(sources.externalAdapterDetails(), calls.details);
}

TEST(MacPowerEvents, AStormOfChangesIsTwoAtFirst)
{
    FakeTimerCalls timers;
    MacRunLoop loop(timers);
    FakePowerCalls calls;
    MacPowerEvents events(calls, loop);
    EXPECT_EQ(calls.observed, 0);
    int heard = 0;
    events.setObserver([] {});
    events.setObserver([&heard] { ++heard; });
    EXPECT_EQ(calls.observed, 1);
    for (int change = 0; change < 100; ++change)
        calls.changed();
    EXPECT_EQ(heard, 1);
    timers.tick(1); // what settles them, started after what counts them
    EXPECT_EQ(heard, 2);
}

TEST(MacPowerEvents, WhereNothingIsAnnouncedThatIsLoggedOnce)
{
    FakeTimerCalls timers;
    MacRunLoop loop(timers);
    FakePowerCalls calls;
    calls.announces = false;
    MacPowerEvents events(calls, loop);
    testing::internal::CaptureStderr();
    events.setObserver([] {});
    events.setObserver([] {});
    const QString log = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(log.count(u("are not announced")), 1) << log.toStdString();
}

TEST(MacUserDefaults, OnlyWhatIsDifferentIsWritten)
{
    FakeDomains domains;
    MacUserDefaults defaults(domains.open(u("own")), u("file"));
    FakeDomains::Domain& own = domains.domains[u("own")];
    defaults.setObject(u("key"), qint64{1});
    defaults.setObject(u("key"), qint64{1});
    EXPECT_EQ(own.writes, 1);
    defaults.setObject(u("key"), true); // equal, and of another type
    EXPECT_EQ(own.writes, 2);
    EXPECT_EQ(own.values.value(u("key")).typeId(), QMetaType::Bool);
}

TEST(MacUserDefaults, ASuiteThatCannotBeOpenedIsNone)
{
    FakeDomains domains;
    domains.refused = u("group.other");
    MacUserDefaultsDatabases databases([&](const QString& name) { return domains.open(name); },
                                       domains.open(u("own")), u("own"), u("/Users/me"));
    EXPECT_EQ(databases.suite(u("group.other")), nullptr);
    UserDefaults* const suite = databases.suite(u("group.mine"));
    ASSERT_NE(suite, nullptr);
    EXPECT_EQ(databases.suite(u("group.mine")), suite);
    EXPECT_EQ(suite->file(), u("/Users/me/Library/Preferences/group.mine.plist"));
    EXPECT_EQ(databases.standard().file(), u("/Users/me/Library/Preferences/own.plist"));
}

} // namespace

} // namespace quindle
