#include "menubar/KeyPath.h"

#include <gtest/gtest.h>

#include "menubar/KeyPathWatcher.h"
#include "tests/menubar/FakeModels.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using test::FakeBattery;
using test::FakeMac;
using State = KeyPathValue::State;

namespace {

struct KeyPathTest : testing::Test
{
    KeyPathTest() { mac.battery = &battery; }

    KeyPathValue at(const char16_t* path) { return KeyPath(QString::fromUtf16(path)).resolve(&mac); }

    FakeBattery battery;
    FakeMac mac;
};

TEST_F(KeyPathTest, Finds)
{
    EXPECT_EQ(at(u"Name").value, QVariant(QStringLiteral("Demo Computer")));
    EXPECT_EQ(at(u"Battery.CycleCount").value, QVariant(qint64(293)));
    EXPECT_EQ(at(u"Battery").value.value<QObject*>(), &battery);
    EXPECT_EQ(at(u"Battery.CycleCount").state, State::Found);
}

TEST_F(KeyPathTest, MissingValueIsFound)
{
    EXPECT_EQ(at(u"Battery.AdapterWatt").state, State::Found);
    EXPECT_FALSE(at(u"Battery.AdapterWatt").value.isValid());
}

TEST_F(KeyPathTest, Unknown)
{
    for (const char16_t* path : {u"Nam", u"name", u"Battery.Nothing", u"Name.Length", u"Battery.CycleCount.x",
                                 u"", u".", u"Battery.", u"Battery..CycleCount"})
        EXPECT_EQ(at(path).state, State::Unknown) << QString::fromUtf16(path).toStdString();
}

TEST_F(KeyPathTest, NullOnTheWay)
{
    mac.battery = nullptr;
    EXPECT_EQ(at(u"Battery.CycleCount").state, State::Null);
    EXPECT_EQ(at(u"Battery.Nothing").state, State::Null);
    EXPECT_EQ(at(u"Battery").state, State::Found);
    mac.name = {};
    EXPECT_EQ(at(u"Name.Length").state, State::Null);
    EXPECT_EQ(KeyPath(QStringLiteral("Name")).resolve(nullptr).state, State::Null);
}

struct WatcherTest : KeyPathTest
{
    WatcherTest()
    {
        watcher.setRoot(&mac);
        QObject::connect(&watcher, &KeyPathWatcher::changed, [this] { ++changes; });
    }

    KeyPathWatcher watcher{KeyPath(QStringLiteral("Battery.CycleCount"))};
    int changes = 0;
};

TEST_F(WatcherTest, FollowsTheValue)
{
    EXPECT_EQ(watcher.current().value, QVariant(qint64(293)));
    battery.setProperty("CycleCount", 294);
    EXPECT_EQ(watcher.current().value, QVariant(qint64(294)));
    EXPECT_EQ(changes, 1);
}

TEST_F(WatcherTest, SaysNothingWhenNothingChanged)
{
    Q_EMIT battery.changed();
    Q_EMIT mac.changed();
    EXPECT_EQ(changes, 0);
}

TEST_F(WatcherTest, FollowsTheObjectOnTheWay)
{
    FakeBattery other;
    other.cycleCount = 5;
    mac.setProperty("Battery", QVariant::fromValue<QObject*>(&other));
    EXPECT_EQ(watcher.current().value, QVariant(qint64(5)));
    EXPECT_EQ(changes, 1);
    battery.setProperty("CycleCount", 1);
    EXPECT_EQ(changes, 1);
    other.setProperty("CycleCount", 6);
    EXPECT_EQ(changes, 2);
    mac.setProperty("Battery", QVariant::fromValue<QObject*>(nullptr));
    EXPECT_EQ(watcher.current().state, State::Null);
    EXPECT_EQ(changes, 3);
}

TEST_F(WatcherTest, OutlivesItsObjects)
{
    auto root = std::make_unique<FakeMac>();
    auto inner = std::make_unique<FakeBattery>();
    root->battery = inner.get();
    watcher.setRoot(root.get());
    changes = 0;
    inner.reset();
    EXPECT_EQ(watcher.current().state, State::Null);
    EXPECT_EQ(changes, 1);
    root->battery = nullptr;
    root.reset();
    watcher.setRoot(&mac);
    EXPECT_EQ(watcher.current().value, QVariant(qint64(293)));
}

} // namespace
