// The recorded history in the application: its page and its settings, on files of their own.

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "application/pages/HistoryPage.h"
#include "charts/TimeSeriesChart.h"
#include "platform/PowerHistory.h"
#include "platform/posix/FileLock.h"
#include "tests/application/HistoryFixture.h"
#include "widgets/controls/LinkButton.h"

using namespace quindle;

namespace {

struct HistoryPagesTest : test::HistoryFixture
{
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
};

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

// Turned to scroll the page, it would limit the history and switch warnings off.
TEST_F(HistoryPagesTest, TheWheelChangesNoSetting)
{
    show("Settings");
    QList<QWidget*> controls;
    for (auto* box : program->window().findChildren<QComboBox*>())
        controls.append(box);
    for (auto* percent : program->window().findChildren<QSpinBox*>())
        controls.append(percent);
    ASSERT_EQ(controls.size(), 7);
    const QVariantMap before = computer.userDefaults.standardDefaults.values;
    for (QWidget* control : controls) {
        const QPointF centre(control->rect().center());
        QWheelEvent event(centre, control->mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(control, &event);
    }
    EXPECT_EQ(computer.userDefaults.standardDefaults.values, before);
}

TEST_F(HistoryPagesTest, AllIsDeletedOnceThatIsConfirmed)
{
    store(2);
    ASSERT_TRUE(SampleStore(database()).append({sampleAt(1000)}).isGood());
    show("Settings");
    answerDeletion("Cancel");
    EXPECT_EQ(storedCount(), 2);
    EXPECT_EQ(computer.distributedNotificationCenter.posted, QStringList());
    answerDeletion("Delete");
    EXPECT_EQ(computer.distributedNotificationCenter.posted,
              QStringList{latin("HistoryDeletedNotification")});
    EXPECT_TRUE(comesTrue([this] { return says("All snapshots deleted"); }));
    EXPECT_TRUE(comesTrue([this] { return storedCount() == 0; }));
    EXPECT_TRUE(comesTrue([this] { return SampleStore(database()).samplesBetween(0, 2000).empty(); }));
}

TEST_F(HistoryPagesTest, WhatWasDeletedWithAllDoesNotComeBack)
{
    store(2);
    show("Snapshots");
    auto* table = program->window().findChild<QTableView*>();
    ASSERT_TRUE(comesTrue([table] { return table->model()->rowCount() == 2; }));
    table->selectRow(0);
    control<QPushButton>("Delete")->click();
    auto* undo = control<LinkButton>("Undo deleting");
    EXPECT_TRUE(comesTrue([&] { return table->model()->rowCount() == 1; }));
    EXPECT_TRUE(undo->isVisible());
    show("Settings");
    answerDeletion("Delete");
    EXPECT_TRUE(comesTrue([this] { return says("All snapshots deleted"); }));
    show("Snapshots");
    EXPECT_FALSE(undo->isVisible());
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
