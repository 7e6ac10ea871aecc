#include "windows/MirroredUserDefaults.h"

#include <gtest/gtest.h>

#include "plist/PropertyList.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"
#include "tests/windows/RecordingLink.h"
#include "windows/HelperEnd.h"

using namespace quindle;

namespace {

struct MirroredUserDefaultsTest : testing::Test
{
    /// The one thing that the helper was asked to store, as "database key value".
    QString mirrored()
    {
        const std::vector<WindowMessage> told = link.told();
        if (told.size() != 1 || told.front().kind != WindowMessage::Kind::Stored)
            return QStringLiteral("%1 messages").arg(told.size());
        const QVariantMap values = propertyListFromBytes(told.front().data).value().toMap();
        return QStringLiteral("%1 %2 %3")
            .arg(QString::fromUtf8(told.front().text), values.firstKey(), values.first().toString());
    }

    RecordingLink link;
    HelperEnd helper{link};
    FakeUserDefaultsDatabases below;
    MirroredUserDefaultsDatabases databases{below, helper};
};

TEST_F(MirroredUserDefaultsTest, WhatIsStoredIsStoredInBothProcesses)
{
    databases.standard().setInteger(QStringLiteral("mode"), 2);
    EXPECT_EQ(mirrored(), QStringLiteral("standard mode 2"));
    EXPECT_EQ(below.standardDefaults.values.value(QStringLiteral("mode")), 2);
    UserDefaults& group = *databases.suite(groupDatabaseName());
    group.setObject(QStringLiteral("customStatusBar"), QStringLiteral("%p"));
    EXPECT_EQ(mirrored(), groupDatabaseName() + QStringLiteral(" customStatusBar %p"));
    EXPECT_EQ(group.object(QStringLiteral("customStatusBar")), QStringLiteral("%p"));
}

TEST_F(MirroredUserDefaultsTest, WhatIsThereAlreadyIsNoMessage)
{
    databases.standard().setInteger(QStringLiteral("mode"), 1);
    mirrored();
    databases.standard().setInteger(QStringLiteral("mode"), 1);
    EXPECT_EQ(link.told().size(), 0U);
    databases.standard().setObject(QStringLiteral("mode"), true); // of another type
    EXPECT_EQ(link.told().size(), 1U);
}

TEST_F(MirroredUserDefaultsTest, ASuiteThatCannotBeOpenedIsNone)
{
    below.suiteAvailable = false;
    EXPECT_EQ(MirroredUserDefaultsDatabases(below, helper).suite(groupDatabaseName()), nullptr);
    EXPECT_EQ(databases.suite(QStringLiteral("other")), nullptr);
}

} // namespace
