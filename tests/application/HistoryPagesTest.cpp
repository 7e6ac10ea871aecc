// The pages of the recorded history in the application, on files of their own.

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTranslator>
#include <gtest/gtest.h>

#include "application/ApplicationProgram.h"
#include "application/pages/HistoryPage.h"
#include "application/snapshots/CompareDialog.h"
#include "application/snapshots/SnapshotRows.h"
#include "application/snapshots/SnapshotsPage.h"
#include "charts/TimeSeriesChart.h"
#include "platform/PowerHistory.h"
#include "platform/posix/FileLock.h"
#include "settings/ApplicationPreferences.h"
#include "tests/preferences/Input.h"
#include "tests/records/TemporaryHistory.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/TestTranslation.h"
#include "tests/support/Texts.h"
#include "widgets/LinkButton.h"

using namespace quindle;

namespace {

struct HistoryPagesTest : TemporaryHistory
{
    HistoryPagesTest()
    {
        computer.setComputer(latin("MacBookAir6,2"), latin("C02MN1TXF5YW"));
        computer.battery() = {{latin("CurrentCapacity"), qint64{66}},
                              {latin("MaxCapacity"), qint64{4000}},
                              {latin("DesignCapacity"), qint64{5000}},
                              {latin("CycleCount"), qint64{42}},
                              {latin("BatterySerialNumber"), latin("D86SECRET")}};
        computer.userDirectories.applicationSupport = {folder()};
    }

    void show(const char* page)
    {
        if (!program) {
            preferences = std::make_unique<ApplicationPreferences>(computer.platform);
            program =
                std::make_unique<ApplicationProgram>(computer.platform, *preferences, computer.bundle, true);
            program->present();
        }
        program->window().showPage(latin(page));
        QApplication::processEvents();
    }

    template <typename Control>
    Control* control(const char* text)
    {
        for (Control* candidate : program->window().findChildren<Control*>())
            if (candidate->accessibleName() == latin(text) ||
                candidate->property("text").toString().remove(u'&') == latin(text))
                return candidate;
        return nullptr;
    }

    bool says(const char* text)
    {
        for (const QLabel* label : program->window().findChildren<QLabel*>())
            if (label->isVisible() && label->text() == latin(text))
                return true;
        return false;
    }

    QTableView* table() { return program->window().findChild<QTableView*>(); }
    QString cell(int row, int column) { return table()->model()->index(row, column).data().toString(); }

    bool hasRows(int count)
    {
        return comesTrue([&] { return table()->model()->rowCount() == count; });
    }

    void store(int count)
    {
        SnapshotArchive archived(archive());
        for (int number = 0; number < count; ++number)
            archived.append(recordAt(1420000000 + number * 86400, 4000 - number));
    }

    /// To the question whether the history is to be deleted.
    void answerDeletion(const char* text)
    {
        control<QPushButton>("Delete History...")->click();
        auto* question = program->window().findChild<QMessageBox*>();
        ASSERT_TRUE(question);
        for (QAbstractButton* button : question->buttons())
            if (button->text().remove(u'&') == latin(text))
                button->click();
        ASSERT_TRUE(comesTrue([this] { return !program->window().findChild<QMessageBox*>(); }));
    }

    qsizetype storedCount() const { return SnapshotArchive(archive()).read().records.size(); }

    FakePlatform computer;
    std::unique_ptr<ApplicationPreferences> preferences;
    std::unique_ptr<ApplicationProgram> program;
};

TEST_F(HistoryPagesTest, SnapshotsAreListedTheNewestFirst)
{
    store(3);
    show("Snapshots");
    ASSERT_TRUE(hasRows(3));
    EXPECT_TRUE(says("3 snapshots"));
    EXPECT_EQ(cell(0, 2), latin("3,998 mAh"));
    EXPECT_EQ(cell(2, 2), latin("4,000 mAh"));
}

TEST_F(HistoryPagesTest, TabGoesFromTheTopOfTheSnapshotsToTheBottom)
{
    store(1);
    show("Snapshots");
    ASSERT_TRUE(hasRows(1));
    const QWidget* page = program->window().findChild<QWidget*>(latin("snapshotsPage"));
    ASSERT_TRUE(page);
    QStringList reached;
    for (const QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
        const auto* button = qobject_cast<const QPushButton*>(next);
        if (next == table())
            reached.append(latin("table"));
        else if (button && button->parentWidget() == page)
            reached.append(button->text().remove(u'&'));
    }
    EXPECT_EQ(reached, (QStringList{latin("Save Now"), latin("table"), latin("Compare"), latin("Delete"),
                                    latin("Import..."), latin("Export...")}));
}

/// Among words from right to left a sign would go to the other side of its number.
TEST_F(HistoryPagesTest, SignAndNumberStayTogetherFromRightToLeft)
{
    const auto difference = [] {
        const QVariantMap older{{latin("Battery.StateOfHealth"), 90.0}};
        const QVariantMap newer{{latin("Battery.StateOfHealth"), 89.8}};
        return comparedSnapshots(older, newer)[1].difference;
    };
    EXPECT_EQ(difference(), latin("-0.2 points"));
    const TestTranslation arabic(latin("C"), latin("ar_LY"));
    EXPECT_EQ(difference(), QStringLiteral(u"\u2068-0.2\u2069 points"));
}

/// As short as that of some languages.
class ShortHealthCaption : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return qstrcmp(text, "Health") == 0 ? latin("H") : QString();
    }
};

TEST_F(HistoryPagesTest, AHealthAboveAHundredIsShownWholeInAWideFont)
{
    ShortHealthCaption translator;
    QCoreApplication::installTranslator(&translator);
    store(1);
    show("Snapshots");
    ASSERT_TRUE(hasRows(1));
    QFont wide = table()->font();
    wide.setStretch(QFont::UltraExpanded);
    table()->setFont(wide);
    EXPECT_GT(table()->columnWidth(1), table()->fontMetrics().horizontalAdvance(latin("101.1 %")));
    QCoreApplication::removeTranslator(&translator);
}

/// Desktops that give the standard buttons pictures, beside which others have none.
class StyleWithPictures : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

TEST_F(HistoryPagesTest, ButtonsOfTheQuestionHaveNoPictures)
{
    const QString style = QApplication::style()->name();
    QApplication::setStyle(new StyleWithPictures);
    show("Settings");
    control<QPushButton>("Delete History...")->click();
    auto* question = program->window().findChild<QMessageBox*>();
    ASSERT_TRUE(question);
    EXPECT_EQ(question->buttons().size(), 2);
    for (const QAbstractButton* button : question->buttons())
        EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
    question->reject();
    program.reset();
    QApplication::setStyle(style);
}

/// The other program keeps the archive locked for as long as the bar is looked for.
TEST_F(HistoryPagesTest, WhatTakesLongShowsABarAndLeavesTheWindowUsable)
{
    store(1);
    show("Snapshots");
    ASSERT_TRUE(hasRows(1));
    auto* bar = control<QProgressBar>("Reading the snapshots");
    ASSERT_TRUE(bar);
    auto other = FileLock::take(QFile::encodeName(archive()) + ".lock", std::chrono::seconds(10));
    ASSERT_TRUE(other);
    control<QPushButton>("Save Now")->click();
    EXPECT_FALSE(bar->isVisible()) << "most is done before anybody would read it";
    EXPECT_TRUE(comesTrue([bar] { return bar->isVisible(); }));
    program->window().showPage(latin("Details"));
    EXPECT_FALSE(bar->isVisible());
    program->window().showPage(latin("Snapshots"));
    EXPECT_TRUE(bar->isVisible()) << "still busy";
    other.reset();
    EXPECT_TRUE(hasRows(2));
    EXPECT_TRUE(comesTrue([bar] { return !bar->isVisible(); }));
}

TEST_F(HistoryPagesTest, TheSmallestWindowShowsEveryColumn)
{
    store(60);
    show("Snapshots");
    program->window().resize(640, 420);
    ASSERT_TRUE(hasRows(60));
    QApplication::processEvents();
    EXPECT_GT(table()->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(table()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(HistoryPagesTest, SnapshotsAreSortedByTheirCaptionsAndStaySelected)
{
    store(3);
    show("Snapshots");
    ASSERT_TRUE(hasRows(3));
    table()->selectRow(0);
    QHeaderView* captions = table()->horizontalHeader();
    const QPoint fullCharge(captions->sectionViewportPosition(2) + 5, captions->height() / 2);
    test::clickAt(*captions->viewport(), fullCharge);
    EXPECT_EQ(cell(0, 2), latin("3,998 mAh"));
    test::clickAt(*captions->viewport(), fullCharge);
    EXPECT_EQ(cell(0, 2), latin("4,000 mAh"));
    const auto selected = table()->selectionModel()->selectedRows();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(cell(selected[0].row(), 2), latin("3,998 mAh"));
    SnapshotArchive(archive()).append(recordAt(1430000000, 4100));
    computer.runLoop.advance(10);
    ASSERT_TRUE(hasRows(4));
    EXPECT_EQ(cell(0, 2), latin("4,100 mAh")) << "in the same order once there are others";
}

TEST_F(HistoryPagesTest, CaptionsAreReachedByTheKeyboard)
{
    store(3);
    show("Snapshots");
    ASSERT_TRUE(hasRows(3));
    QHeaderView* captions = table()->horizontalHeader();
    EXPECT_TRUE(captions->focusPolicy() & Qt::TabFocus);
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right})
        test::pressKey(*captions, key);
    EXPECT_EQ(captions->accessibleName(), latin("Sort by Full charge"));
    test::pressKey(*captions, Qt::Key_Space);
    EXPECT_EQ(cell(0, 2), latin("3,998 mAh"));
    test::pressKey(*captions, Qt::Key_Return);
    EXPECT_EQ(cell(0, 2), latin("4,000 mAh"));
    EXPECT_EQ(captions->accessibleDescription(), latin("Sorted by Full charge, descending"));
}

TEST_F(HistoryPagesTest, WithoutAnyThePageSaysSo)
{
    show("Snapshots");
    EXPECT_TRUE(comesTrue([this] { return says("No snapshots yet"); }));
    EXPECT_FALSE(control<QPushButton>("Export...")->isEnabled());
}

TEST_F(HistoryPagesTest, OneIsSavedNow)
{
    show("Snapshots");
    control<QPushButton>("Save Now")->click();
    ASSERT_TRUE(hasRows(1));
    EXPECT_EQ(cell(0, 3), latin("42"));
    EXPECT_EQ(cell(0, 4), latin("MacBookAir6,2"));
    EXPECT_TRUE(comesTrue([this] { return says("1 snapshot saved"); }));
    EXPECT_EQ(storedCount(), 1);
}

TEST_F(HistoryPagesTest, DeletedOnesComeBack)
{
    store(4);
    show("Snapshots");
    ASSERT_TRUE(hasRows(4));
    EXPECT_FALSE(control<QPushButton>("Delete")->isEnabled());
    table()->selectRow(1);
    control<QPushButton>("Delete")->click();
    ASSERT_TRUE(hasRows(3));
    EXPECT_EQ(storedCount(), 3);
    auto* undo = control<LinkButton>("Undo deleting");
    ASSERT_TRUE(undo->isVisible());
    undo->click();
    ASSERT_TRUE(hasRows(4));
    EXPECT_EQ(cell(1, 2), latin("3,998 mAh"));
    EXPECT_FALSE(undo->isVisible());
}

TEST_F(HistoryPagesTest, TwoAreCompared)
{
    store(3);
    show("Snapshots");
    ASSERT_TRUE(hasRows(3));
    auto* compare = control<QPushButton>("Compare");
    table()->selectRow(0);
    EXPECT_FALSE(compare->isEnabled()) << "one alone";
    table()->selectAll();
    EXPECT_FALSE(compare->isEnabled()) << "three";
    table()->clearSelection();
    table()->setSelectionMode(QAbstractItemView::MultiSelection);
    table()->selectRow(0);
    table()->selectRow(2);
    ASSERT_TRUE(compare->isEnabled());
    compare->click();
    auto* dialog = program->window().findChild<CompareDialog*>();
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(says("4,000 mAh"));
    EXPECT_TRUE(says("-2 mAh"));
}

TEST_F(HistoryPagesTest, ExportedWithSerialNumbersOnlyWhereTheyAreAskedFor)
{
    show("Snapshots");
    control<QPushButton>("Save Now")->click();
    ASSERT_TRUE(hasRows(1));
    auto* page = program->window().findChild<SnapshotsPage*>();
    const QString json = m_root.filePath(latin("out.json"));
    page->exportTo(json, false);
    EXPECT_TRUE(bytesOf(json).startsWith('['));
    EXPECT_FALSE(bytesOf(json).contains("D86SECRET"));
    page->exportTo(json, true);
    EXPECT_TRUE(bytesOf(json).contains("D86SECRET"));
    const QString csv = m_root.filePath(latin("out.csv"));
    page->exportTo(csv, false);
    EXPECT_EQ(bytesOf(csv).count("\r\n"), 2);
    EXPECT_TRUE(says("Exported"));
    page->exportTo(latin("/proc/nowhere/out.csv"), false);
    EXPECT_FALSE(says("Exported"));
}

TEST_F(HistoryPagesTest, HistoryShowsWhatIsRecorded)
{
    const qint64 now = computer.clock.time.toSecsSinceEpoch();
    SampleStore store(database());
    ASSERT_TRUE(store.append({sampleAt(now - 3600, 80), sampleAt(now - 1800, 70)}).isGood());
    SnapshotArchive archived(archive());
    for (int day = 0; day < 100; ++day)
        archived.append(recordAt(now - (100 - day) * 86400, 4000 - day));
    show("History");
    auto* page = program->window().findChild<HistoryPage*>();
    ASSERT_TRUE(page);
    const auto* sentence = page->findChild<QLabel*>(latin("trendSentence"));
    ASSERT_TRUE(sentence);
    EXPECT_TRUE(comesTrue([&] { return sentence->text().startsWith(latin("At this pace")); }))
        << sentence->text().toStdString();
}

TEST_F(HistoryPagesTest, TheHelperIsAskedForItsSamplesAndTheyAreDrawn)
{
    const qint64 now = computer.clock.time.toSecsSinceEpoch();
    ASSERT_TRUE(
        SampleStore(database()).append({sampleAt(now - 7200, 80), sampleAt(now - 3700, 70)}).isGood());
    QStringList& posted = computer.distributedNotificationCenter.posted;
    show("Battery");
    EXPECT_EQ(posted, QStringList());
    show("History");
    EXPECT_EQ(posted, QStringList{latin("SamplesWantedNotification")});
    auto* page = program->window().findChild<HistoryPage*>();
    std::vector<TimeSeriesChart*> charts;
    for (auto* chart : page->findChildren<TimeSeriesChart*>())
        if (chart->accessibleName().startsWith(latin("Charge")))
            charts.push_back(chart);
    ASSERT_EQ(charts.size(), 1U);
    const auto drawn = [&] { return charts[0]->content().series.back().points.size(); };
    ASSERT_TRUE(comesTrue([&] { return drawn() == 2; }));
    // What the helper hands over is stored by another process.
    EXPECT_EQ(statusOf(forked([&] { SampleStore(database()).append({sampleAt(now - 60, 65)}); })), 0);
    EXPECT_TRUE(comesTrue([&] { return drawn() == 3; }));
}

TEST_F(HistoryPagesTest, WhereRecordingIsOffThePageSaysSoAndLeadsToTheSwitch)
{
    show("History");
    EXPECT_FALSE(says("Recording is off, so nothing is added."));
    show("Battery");
    computer.userDefaults.standardDefaults.values.insert(latin("recordHistory"), false);
    show("History");
    EXPECT_TRUE(says("Recording is off, so nothing is added."));
    control<LinkButton>("Settings of recording")->click();
    EXPECT_EQ(program->window().shownPage(), latin("Settings"));
}

TEST_F(HistoryPagesTest, UPowersWeekIsTakenOverByTheWindowToo)
{
    struct Week : PowerHistory
    {
        qint64 now = 0;

        std::optional<RecordedPower> lastWeek() override
        {
            return RecordedPower{.charge = {{now - 7200, 80, PowerHistoryPoint::State::Discharging}},
                                 .rate = {}};
        }
    };
    const qint64 now = computer.clock.time.toSecsSinceEpoch();
    const auto service = [now] {
        auto week = std::make_unique<Week>();
        week->now = now;
        return week;
    };
    computer.userDefaults.standardDefaults.values.insert(latin("recordHistory"), false);
    show("History");
    program->takeOverFirstWeek(service);
    computer.userDefaults.standardDefaults.values.insert(latin("recordHistory"), true);
    EXPECT_FALSE(QFile::exists(database())) << "nothing is recorded";
    program->takeOverFirstWeek(service);
    EXPECT_TRUE(comesTrue([&] { return SampleStore(database()).firstMoment() == now - 7200; }));
    const auto* legend = program->window().findChild<QLabel*>(latin("sampleLegend"));
    EXPECT_TRUE(comesTrue([&] { return legend->text().contains(latin("pale from UPower")); }));
}

TEST_F(HistoryPagesTest, ADamagedFileThatWasSetAsideIsNamedOnThePage)
{
    write(database(), "damaged");
    show("History");
    const auto* told = program->window().findChild<QLabel*>(latin("message"));
    EXPECT_TRUE(comesTrue([&] { return told->text().contains(latin("is damaged, set aside as")); }));
    EXPECT_EQ(told->toolTip(), told->text().toHtmlEscaped());
}

TEST_F(HistoryPagesTest, RecordingIsSwitchedAndLimited)
{
    show("Settings");
    auto* record = control<QCheckBox>("Record charge, power and a daily snapshot");
    ASSERT_TRUE(record);
    EXPECT_TRUE(record->isChecked());
    record->click();
    EXPECT_EQ(computer.userDefaults.standardDefaults.values.value(latin("recordHistory")), QVariant(false));
    EXPECT_EQ(computer.distributedNotificationCenter.posted,
              QStringList{latin("SettingsChangedNotification")})
        << "the helper looks at it when it is told, or an hour later";
    auto* days = control<QComboBox>("Keep charge and power");
    EXPECT_EQ(days->currentData().toLongLong(), 0);
    const int year = days->findData(365);
    days->setCurrentIndex(year);
    Q_EMIT days->activated(year);
    EXPECT_EQ(computer.userDefaults.standardDefaults.values.value(latin("historyDays")),
              QVariant(qint64{365}));
}

TEST_F(HistoryPagesTest, AnOddNumberOfDaysIsShownAsItIs)
{
    computer.userDefaults.standardDefaults.values.insert(latin("historyDays"), qint64{77});
    show("Settings");
    EXPECT_EQ(control<QComboBox>("Keep charge and power")->currentText(), latin("77 days"));
}

TEST_F(HistoryPagesTest, AllIsDeletedOnceThatIsConfirmed)
{
    store(2);
    ASSERT_TRUE(SampleStore(database()).append({sampleAt(1000)}).isGood());
    show("Settings");
    answerDeletion("Cancel");
    EXPECT_EQ(storedCount(), 2);
    answerDeletion("Delete");
    EXPECT_TRUE(comesTrue([this] { return says("All snapshots deleted"); }));
    EXPECT_TRUE(comesTrue([this] { return storedCount() == 0; }));
    EXPECT_TRUE(comesTrue([this] { return SampleStore(database()).samplesBetween(0, 2000).empty(); }));
}

TEST_F(HistoryPagesTest, WhatCannotBeDeletedIsSaidWhereItWasAskedFor)
{
    QDir().mkpath(database()); // a directory in the file's place
    show("Settings");
    answerDeletion("Delete");
    const auto* told = program->window().findChild<QLabel*>(latin("historyMessage"));
    ASSERT_TRUE(told);
    EXPECT_TRUE(comesTrue([&] { return told->text().contains(database() + latin(": ")); }))
        << told->text().toStdString();
    EXPECT_TRUE(told->isVisible());
    show("Battery");
    show("Settings");
    EXPECT_FALSE(told->isVisible()) << "that was another time";
}

} // namespace
