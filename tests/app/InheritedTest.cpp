// Entry points that nothing in the program calls: each does what docs/inherited.md says of it.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "battery/QDBattery.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QByteArray rawEntry(const QByteArray& body)
{
    const QJsonDocument records = QJsonDocument::fromJson(QByteArray::fromBase64(body));
    return QByteArray::fromBase64(records[0][QStringLiteral("Data.Raw")].toString().toLatin1());
}

struct Inherited : testing::Test, Helper
{
    Inherited()
    {
        setBattery(50);
        setRegistry("BatterySerialNumber", QStringLiteral("D86ABCDE"));
        platform.registry.entries[QStringLiteral("IOPlatformExpertDevice")] = {
            {QStringLiteral("model"), QByteArray("NotListed1,1")}};
        platform.bundle.info->insert(QStringLiteral("QDStatisticsHost"), QStringLiteral("stats.example"));
        launch();
    }
};

TEST_F(Inherited, uploadDailyMacDataToQNDOnline_oldSendsTheSerialNumberInClear)
{
    delegate->uploadDailyMacDataToQNDOnline();
    delegate->uploadDailyMacDataToQNDOnline_old();
    const auto& bodies = platform.urlSession.bodies;
    ASSERT_EQ(bodies.size(), 2U);
    EXPECT_EQ(platform.urlSession.posted[0], platform.urlSession.posted[1]);
    EXPECT_FALSE(rawEntry(bodies[0]).contains("D86ABCDE"));
    EXPECT_TRUE(rawEntry(bodies[1]).contains("D86ABCDE"));
}

TEST_F(Inherited, registerDistributedNotificationCenterRegistersOnceMore)
{
    delegate->registerDistributedNotificationCenter();
    record().titlesSet.clear();
    platform.notificationCenter.post(QStringLiteral("lalala"));
    EXPECT_EQ(record().titlesSet.size(), 2 * 3) << "two registrations, three titles at each refresh";
}

TEST(InheritedDate, calculateManufactureDate_deprecatedIsTheSameDayAtNoon)
{
    const auto date = QDBattery::calculateManufactureDate(17506);
    const auto former = QDBattery::calculateManufactureDate_deprecated(17506);
    ASSERT_TRUE(date && former);
    EXPECT_EQ(former->date(), date->date());
    EXPECT_EQ(former->time(), QTime(12, 0));
}

} // namespace
