#include "app/OlderSettings.h"

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QString u(const char* text)
{
    return QString::fromLatin1(text);
}

struct OlderSettingsTest : testing::Test
{
    OlderSettingsTest()
    {
        standard() = {{u("customMenuBarSettingSelectedIndex"), qint64{0}}, {u("statusBarString"), u("%w W")}};
        suite() = {{u("customStatusBar"), u("%p%")}};
    }

    QVariantMap& standard() { return databases.standardDefaults.values; }
    QVariantMap& suite() { return databases.suiteDefaults.values; }

    QVariant parked()
    {
        copyTextParkedByOlderHelper(databases);
        return standard().value(u("parkedCustomStatusBar"));
    }

    void expectUntouched(const char* why)
    {
        const QVariantMap before = standard();
        EXPECT_EQ(parked(), before.value(u("parkedCustomStatusBar"))) << why;
        EXPECT_EQ(standard(), before) << why;
    }

    FakeUserDefaultsDatabases databases;
};

TEST_F(OlderSettingsTest, AParkedTextIsCopiedAndStaysWhereItWas)
{
    EXPECT_EQ(parked(), QVariant(u("%w W")));
    EXPECT_EQ(standard().value(u("statusBarString")), QVariant(u("%w W")));
    standard()[u("statusBarString")] = u("theirs");
    EXPECT_EQ(parked(), QVariant(u("%w W"))) << "once";
}

TEST_F(OlderSettingsTest, AnEmptyTextIsATextToo)
{
    standard()[u("statusBarString")] = u("");
    EXPECT_EQ(parked(), QVariant(u("")));
}

TEST_F(OlderSettingsTest, TheMainApplicationsOwnTextIsLeftAlone)
{
    suite()[u("customStatusBar")] = u("%r");
    expectUntouched("the user's own text is in force");
    suite().clear();
    expectUntouched("the default was never written down");
    suite() = {{u("customStatusBar"), u("%p%")}};
    standard()[u("customMenuBarSettingSelectedIndex")] = qint64{1};
    expectUntouched("the own text is chosen");
    standard().remove(u("customMenuBarSettingSelectedIndex"));
    expectUntouched("nothing was ever chosen");
}

TEST_F(OlderSettingsTest, WhatIsNoTextOrNotThereIsNotCopied)
{
    standard()[u("statusBarString")] = qint64{3};
    expectUntouched("a number");
    standard().remove(u("statusBarString"));
    expectUntouched("nothing");
    standard()[u("statusBarString")] = u("%w W");
    databases.suiteAvailable = false;
    expectUntouched("no shared settings");
}

} // namespace
