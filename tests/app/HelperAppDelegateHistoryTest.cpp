#include <QJsonDocument>

#include <gtest/gtest.h>

#include "app/HelperAppDelegate.h"
#include "history/DailyUpload.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct HelperAppDelegateHistoryTest : testing::Test, Helper
{
};

TEST_F(HelperAppDelegateHistoryTest, GateOpensAfterMoreThanADayAndRegistersObserversAgain)
{
    setBattery(50);
    setShared("autoUpload", true);
    launch();
    const QDateTime launched = delegate->lastDailyUploadToOnlineService();
    platform.clock.advance(86400.0);
    delegate->checkForAutoSaveData();
    EXPECT_EQ(delegate->lastDailyUploadToOnlineService(), launched);
    platform.clock.advance(0.001);
    delegate->checkForAutoSaveData();
    EXPECT_EQ(delegate->lastDailyUploadToOnlineService(), platform.clock.now());
    record().titlesSet.clear();
    platform.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
    EXPECT_EQ(record().titlesSet.size(), 4 * 3); // two distributed observers, each heard by two local ones
}

TEST_F(HelperAppDelegateHistoryTest, GateStaysOpenWithoutPermission)
{
    launch();
    const QDateTime launched = delegate->lastDailyUploadToOnlineService();
    platform.clock.advance(5 * 86400.0);
    delegate->checkForAutoSaveData();
    EXPECT_EQ(delegate->lastDailyUploadToOnlineService(), launched);
}

TEST_F(HelperAppDelegateHistoryTest, GateRunsWithoutABatteryToo)
{
    setShared("autoUpload", true);
    launch();
    platform.clock.advance(86401.0);
    delegate->updateStatusBarTitle();
    EXPECT_EQ(delegate->lastDailyUploadToOnlineService(), platform.clock.now());
}

TEST_F(HelperAppDelegateHistoryTest, ShowsWhatTheDailyUploadWouldSend)
{
    setBattery(50);
    setRegistry("BatterySerialNumber", QStringLiteral("D86ABCDE"));
    platform.registry.entries[QStringLiteral("IOPlatformExpertDevice")] = {
        {QStringLiteral("model"), QByteArray("NotListed1,1")}};
    launch();
    EXPECT_EQ(delegate->dailyUploadText(), QString()) << "no host";
    platform.bundle.info->insert(QStringLiteral("QDStatisticsHost"), QStringLiteral("stats.example"));
    const QString text = delegate->dailyUploadText();
    EXPECT_TRUE(
        text.startsWith(QStringLiteral("POST https://stats.example/qndonline/upload_mac_db_pro.php\n\n[\n")))
        << text.toStdString();
    const auto shown = QJsonDocument::fromJson(text.section(QStringLiteral("\n\n"), 1).toUtf8());
    const auto upload = delegate->currentDailyUpload();
    ASSERT_TRUE(upload);
    EXPECT_EQ(shown.toJson(QJsonDocument::Compact).toBase64(), upload->body);
    EXPECT_TRUE(platform.urlSession.posted.isEmpty());
}

TEST_F(HelperAppDelegateHistoryTest, NothingIsSentWithoutABattery)
{
    platform.bundle.info->insert(QStringLiteral("QDStatisticsHost"), QStringLiteral("stats.example"));
    launch();
    delegate->uploadDailyMacDataToQNDOnline();
    delegate->uploadDailyMacDataToQNDOnline_old();
    EXPECT_TRUE(platform.urlSession.posted.isEmpty());
}

TEST_F(HelperAppDelegateHistoryTest, NothingIsSentWithoutWhatIdentifiesTheComputer)
{
    setBattery(50);
    setRegistry("BatterySerialNumber", QStringLiteral("D86ABCDE"));
    platform.bundle.info->insert(QStringLiteral("QDStatisticsHost"), QStringLiteral("stats.example"));
    launch();
    delegate->uploadDailyMacDataToQNDOnline();
    delegate->uploadDailyMacDataToQNDOnline_old();
    EXPECT_TRUE(platform.urlSession.posted.isEmpty());
}

TEST_F(HelperAppDelegateHistoryTest, WithoutABatteryTheDailyUploadHasNothingToShow)
{
    platform.bundle.info->insert(QStringLiteral("QDStatisticsHost"), QStringLiteral("stats.example"));
    launch();
    EXPECT_EQ(delegate->dailyUploadText(),
              QStringLiteral("Nothing would be sent now: a value that names the battery is missing."));
}

} // namespace
