// Every page of the application in a language that is longer than English.

#include <set>

#include <QApplication>
#include <QDateTime>
#include <QDialog>
#include <QGridLayout>
#include <QListWidget>
#include <QTranslator>
#include <gtest/gtest.h>

#include "application/ApplicationProgram.h"
#include "application/Sidebar.h"
#include "application/snapshots/CompareDialog.h"
#include "application/snapshots/SnapshotRows.h"
#include "application/snapshots/SnapshotView.h"
#include "preferences/panes/PaneView.h"
#include "settings/ApplicationPreferences.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/PseudoLanguage.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

/// As long as dates are in Japanese in a font that has its characters.
struct LongDates : QTranslator
{
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return latin(context) == latin("Dates") && latin(text) == latin("d MMM yyyy")
                   ? latin("yyyy MMMM d, dddd")
                   : QString();
    }

    bool isEmpty() const override { return false; }
};

struct TranslatedPagesTest : testing::Test
{
    TranslatedPagesTest()
    {
        computer.setComputer(latin("MacBookAir6,2"), latin("C02MN1TXF5YW"));
        computer.battery() = {
            {latin("CurrentCapacity"), qint64{66}},  {latin("MaxCapacity"), qint64{4000}},
            {latin("DesignCapacity"), qint64{5000}}, {latin("CycleCount"), qint64{42}},
            {latin("Temperature"), qint64{3031}},    {latin("IsCharging"), true},
            {latin("ExternalConnected"), true},      {latin("BatterySerialNumber"), latin("D86SECRET")}};
        computer.bundle.bundlePath = latin("/usr/lib/Quindle Helper/Quindle.app");
    }

    void expectTranslatedAndWhole(const char* page, const QStringList& data = {})
    {
        ApplicationProgram program(computer.platform, preferences, helperBundle, true);
        program.present();
        program.window().showPage(latin(page));
        QApplication::processEvents();
        const QStringList names = QStringList{latin("Quindle"),  latin("MacBook"),      latin("(13-inch"),
                                              latin("(11-inch"), latin("C02MN1TXF5YW"), latin("D86SECRET"),
                                              latin("OS X"),     latin("Test Computer")} +
                                  data;
        EXPECT_EQ(test::untranslatedTexts(program.window(), names), QStringList()) << page;
        EXPECT_EQ(test::cutTexts(program.window(), names), QStringList()) << page;
    }

    test::PseudoLanguage language;
    FakePlatform computer;
    FakeBundle helperBundle;
    ApplicationPreferences preferences{computer.platform};
};

TEST_F(TranslatedPagesTest, Battery)
{
    expectTranslatedAndWhole("Battery");
}

TEST_F(TranslatedPagesTest, History)
{
    // Dates are the locale's.
    expectTranslatedAndWhole("History");
}

TEST_F(TranslatedPagesTest, Snapshots)
{
    expectTranslatedAndWhole("Snapshots");
}

TEST_F(TranslatedPagesTest, Details)
{
    // Names and values of the registry stay what other programs call them.
    expectTranslatedAndWhole("Details",
                             {latin("Capacity"), latin("Serial"), latin("Connected"), latin("Charging"),
                              latin("CycleCount"), latin("Temperature"), latin("model"), latin("Battery")});
}

TEST_F(TranslatedPagesTest, Settings)
{
    expectTranslatedAndWhole("Settings");
}

TEST(TranslatedSidebarTest, IsWideEnoughForItsTitles)
{
    const QString title = latin("Momentaufnahmen aller Batterien");
    Sidebar sidebar({title});
    sidebar.show();
    QApplication::processEvents();
    QFont chosen = sidebar.list().font();
    chosen.setBold(true);
    const QFontMetrics metrics(chosen);
    const int inset = metrics.height() * 3 / 4;
    EXPECT_LE(metrics.horizontalAdvance(title) + 2 * inset, sidebar.list().viewport()->width());
}

TEST_F(TranslatedPagesTest, TheColumnsOfSnapshotsAreWideEnoughForTheirCaptions)
{
    const SnapshotView view;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        const QString caption = view.model()->headerData(column, Qt::Horizontal).toString();
        EXPECT_GT(view.columnWidth(column), view.fontMetrics().horizontalAdvance(caption))
            << caption.toStdString();
    }
}

TEST_F(TranslatedPagesTest, TheColumnOfDatesIsWideEnoughForThoseOfTheLanguage)
{
    LongDates dates;
    QCoreApplication::installTranslator(&dates);
    const SnapshotView view;
    const QString date = snapshotDateText(QDateTime(QDate(2028, 9, 28), QTime(20, 58)));
    EXPECT_GT(view.columnWidth(0), view.fontMetrics().horizontalAdvance(date)) << date.toStdString();
}

TEST_F(TranslatedPagesTest, TheCaptionsOfSettingsFormOneColumn)
{
    ApplicationProgram program(computer.platform, preferences, helperBundle, true);
    program.present();
    program.window().showPage(latin("Settings"));
    QApplication::processEvents();
    const auto expectOneColumn = [&program] {
        std::set<int> widths;
        const auto panes = program.window().findChildren<PaneView*>();
        for (const PaneView* pane : panes)
            widths.insert(qobject_cast<QGridLayout*>(pane->layout())->cellRect(0, 0).width());
        EXPECT_EQ(panes.size(), 3);
        EXPECT_EQ(widths.size(), 1U) << testing::PrintToString(widths);
    };
    expectOneColumn();
    QFont large = program.window().font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    program.window().setFont(large);
    QApplication::processEvents();
    expectOneColumn();
}

TEST_F(TranslatedPagesTest, ComparedSnapshots)
{
    QVariantMap older{{latin("Battery.StateOfHealth"), 90.5},
                      {latin("Battery.FullChargeCapacity"), 4500},
                      {latin("Battery.DesignCapacity"), 5000},
                      {latin("Battery.CycleCount"), 41}};
    QVariantMap newer = older;
    newer[latin("Battery.StateOfHealth")] = 88.0;
    CompareDialog dialog(older, newer, nullptr);
    dialog.show();
    QApplication::processEvents();
    EXPECT_EQ(test::untranslatedTexts(dialog, {latin("Close")}), QStringList());
    EXPECT_EQ(test::cutTexts(dialog), QStringList());
}

} // namespace
