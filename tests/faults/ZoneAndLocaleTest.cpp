// Another time zone or locale while the helper runs.

#include <QLocale>

#include "battery/QDBattery.h"
#include "platform/Image.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/ScopedTimeZone.h"

#include <gtest/gtest.h>

using namespace quindle;

namespace {

struct ZoneAndLocaleTest : testing::Test, Helper
{
    ZoneAndLocaleTest()
    {
        setBattery(50);
        setRegistry("ManufactureDate", qint64{35 * 512 + 1 * 32 + 1}); // 1 January 2015
        setRegistry("Temperature", qint64{3031});
        setShared("customStatusBar", QStringLiteral("%p% %t %w"));
        platform.clock.time = QDateTime(QDate(2015, 1, 5), QTime(12, 0), QTimeZone::utc());
    }

    void refresh()
    {
        delegate->myMac().Battery()->updateData();
        delegate->updateStatusBarTitle();
    }

    QString age() { return delegate->myMac().Battery()->property("CustomAge").toString(); }
};

TEST_F(ZoneAndLocaleTest, AnotherTimeZoneCountsFromTheNextRefresh)
{
    const ScopedTimeZone home("UTC");
    launch();
    const QString atHome = age();
    const QString shown = title();
    {
        const ScopedTimeZone away("UTC-14"); // the next day has begun there
        refresh();
        EXPECT_NE(age(), atHome);
        EXPECT_EQ(title(), shown);
    }
    refresh();
    EXPECT_EQ(age(), atHome);
}

TEST_F(ZoneAndLocaleTest, NoLocaleChangesWhatIsShown)
{
    const ScopedTimeZone home("UTC");
    launch();
    const QString shown = title();
    const QString toolTipBefore = record().toolTipsSet.last();
    EXPECT_EQ(shown, QStringLiteral("50.0% 30.0 0.0"));
    const QLocale former;
    for (const char* name : {"de_DE", "ar_EG", "fa_IR", "hi_IN", "tr_TR", "th_TH"}) {
        QLocale::setDefault(QLocale(QLatin1String(name)));
        refresh();
        EXPECT_EQ(title(), shown) << name;
        EXPECT_EQ(record().toolTipsSet.last(), toolTipBefore) << name;
    }
    QLocale::setDefault(former);
}

} // namespace
