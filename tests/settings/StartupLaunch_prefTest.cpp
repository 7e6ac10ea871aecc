#include "settings/StartupLaunch_pref.h"

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

namespace quindle {

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

struct Location
{
    const char* bundle;   ///< the running bundle's path
    const char* inserted; ///< the item that is made for it
};

const Location locations[] = {
    {"/opt/Quindle-Helper.app", "file:///opt/Quindle-Helper.app"},
    {"/opt/Quindle.app", "file:///opt/Quindle.app/Contents/Resources/Quindle-Helper.app"},
    {"/opt/Quindle.app/Contents/Resources/Quindle-Helper.app",
     "file:///opt/Quindle.app/Contents/Resources/Quindle-Helper.app"},
    {"/usr/lib/Quindle Helper/Quindle.app",
     "file:///usr/lib/Quindle%20Helper/Quindle.app/Contents/Resources/Quindle-Helper.app"},
    {"/opt/quindle-helper.app", "file:///opt/quindle-helper.app/Contents/Resources/Quindle-Helper.app"},
    {"/opt/Quindle-Helper/x", "file:///opt/Quindle-Helper/x"},
    {"/opt/ä%5/Quindle-Helper.app", "file:///opt/%C3%A4%255/Quindle-Helper.app"},
    {"", "file:///Contents/Resources/Quindle-Helper.app"},
};

class StartupLaunchPref : public testing::TestWithParam<Location>
{
protected:
    QString bundle() const { return text(GetParam().bundle); }
    QString inserted() const { return text(GetParam().inserted); }

    FakeLoginItems items;
};

TEST_P(StartupLaunchPref, EnablingTwiceLeavesOneItemAtTheFront)
{
    const QStringList others{text("file:///a"), text("file:///Other.app/")};
    items.urls = others;
    EXPECT_FALSE(StartupLaunch_pref::isAppLoginItem(items, bundle()));
    for (int time = 0; time < 2; ++time) {
        StartupLaunch_pref::setLaunchOnLogin(items, bundle(), true);
        EXPECT_EQ(items.urls, QStringList(inserted()) + others);
        EXPECT_TRUE(StartupLaunch_pref::isAppLoginItem(items, bundle()));
    }
    for (int time = 0; time < 2; ++time) {
        StartupLaunch_pref::setLaunchOnLogin(items, bundle(), false);
        EXPECT_EQ(items.urls, others);
        EXPECT_FALSE(StartupLaunch_pref::isAppLoginItem(items, bundle()));
    }
}

TEST_P(StartupLaunchPref, FindsAnItemThatResolvesToTheFolder)
{
    items.urls = QStringList(inserted() + u'/');
    EXPECT_TRUE(StartupLaunch_pref::isAppLoginItem(items, bundle()));
    StartupLaunch_pref::setLaunchOnLogin(items, bundle(), true);
    EXPECT_EQ(items.urls->size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Locations, StartupLaunchPref, testing::ValuesIn(locations));

const QString helper = QStringLiteral("/opt/Quindle-Helper.app");
const QString helperUrl = QStringLiteral("file:///opt/Quindle-Helper.app/");

TEST(StartupLaunchPrefFailures, AListThatCannotBeHadHoldsNothingAndIsNotChanged)
{
    FakeLoginItems items;
    items.urls.reset();
    EXPECT_FALSE(StartupLaunch_pref::isAppLoginItem(items, helper));
    StartupLaunch_pref::setLaunchOnLogin(items, helper, true);
    StartupLaunch_pref::setLaunchOnLogin(items, helper, false);
    EXPECT_EQ(items.urls, std::nullopt);
}

TEST(StartupLaunchPrefFailures, AListThatIsGoneWhenItIsToBeChangedIsNotChanged)
{
    for (const bool enable : {true, false}) {
        FakeLoginItems items;
        items.urls = enable ? QStringList() : QStringList(helperUrl);
        const auto before = items.urls;
        items.snapshotsLeft = 1;
        StartupLaunch_pref::setLaunchOnLogin(items, helper, enable);
        EXPECT_EQ(items.urls, before);
    }
}

TEST(StartupLaunchPrefFailures, ItemsThatDoNotResolveArePassedOver)
{
    FakeLoginItems items;
    items.urls = QStringList{QString(), text("no URL"), helperUrl};
    EXPECT_TRUE(StartupLaunch_pref::isAppLoginItem(items, helper));
    StartupLaunch_pref::setLaunchOnLogin(items, helper, false);
    EXPECT_EQ(items.urls, (QStringList{QString(), text("no URL")}));
}

TEST(StartupLaunchPrefFailures, OfTwoItemsTheFirstIsTakenOut)
{
    FakeLoginItems items;
    items.urls = QStringList{text("file:///a"), helperUrl, text("file:///b"), helperUrl};
    StartupLaunch_pref::setLaunchOnLogin(items, helper, false);
    EXPECT_EQ(items.urls, (QStringList{text("file:///a"), text("file:///b"), helperUrl}));
}

TEST(StartupLaunchPrefIdentifier, IsNotUsed)
{
    FakeLoginItems items;
    StartupLaunch_pref::setLaunchOnLogin(items, helper, true);
    StartupLaunch_pref::setLaunchOnLogin(items, helper, false);
    EXPECT_TRUE(items.switched.empty());
}

} // namespace

} // namespace quindle
