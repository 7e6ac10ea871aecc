// The page of the saved snapshots in the application, on files of their own.

#include <QHeaderView>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <gtest/gtest.h>

#include "application/pages/HistoryPage.h"
#include "application/snapshots/CompareDialog.h"
#include "application/snapshots/SnapshotFiles.h"
#include "application/snapshots/SnapshotRows.h"
#include "application/snapshots/SnapshotView.h"
#include "application/snapshots/SnapshotsPage.h"
#include "charts/TimeSeriesChart.h"
#include "platform/posix/FileLock.h"
#include "tests/application/HistoryFixture.h"
#include "tests/preferences/Input.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TestTranslation.h"
#include "widgets/controls/LinkButton.h"

using namespace quindle;

namespace {

struct SnapshotsPageTest : test::HistoryFixture
{
    QTableView* table() { return program->window().findChild<QTableView*>(); }
    QString cell(int row, int column) { return table()->model()->index(row, column).data().toString(); }

    bool hasRows(int count)
    {
        return comesTrue([&] { return table()->model()->rowCount() == count; });
    }
};

TEST_F(SnapshotsPageTest, SnapshotsAreListedTheNewestFirst)
{
    store(3);
    show("Snapshots");
    ASSERT_TRUE(hasRows(3));
    EXPECT_TRUE(says("3 snapshots"));
    EXPECT_EQ(cell(0, 2), latin("3,998 mAh"));
    EXPECT_EQ(cell(2, 2), latin("4,000 mAh"));
}

TEST_F(SnapshotsPageTest, TabGoesFromTheTopOfTheSnapshotsToTheBottom)
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
TEST_F(SnapshotsPageTest, SignAndNumberStayTogetherFromRightToLeft)
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
TEST_F(SnapshotsPageTest, AHealthAboveAHundredIsShownWholeInAWideFont)
{
    // As short as that of some languages.
    const TestTranslation translation(latin("Health"), latin("H"));
    store(1);
    show("Snapshots");
    ASSERT_TRUE(hasRows(1));
    QFont wide = table()->font();
    wide.setStretch(QFont::UltraExpanded);
    table()->setFont(wide);
    EXPECT_GT(table()->columnWidth(1), table()->fontMetrics().horizontalAdvance(latin("101.1 %")));
}

/// Desktops that give the standard buttons pictures, beside which others have none.
TEST_F(SnapshotsPageTest, WhatTakesLongShowsABarAndLeavesTheWindowUsable)
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

TEST_F(SnapshotsPageTest, TheSmallestWindowShowsEveryColumn)
{
    store(60);
    show("Snapshots");
    program->window().resize(640, 420);
    ASSERT_TRUE(hasRows(60));
    QApplication::processEvents();
    EXPECT_GT(table()->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(table()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(SnapshotsPageTest, SnapshotsAreSortedByTheirCaptionsAndStaySelected)
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

TEST_F(SnapshotsPageTest, CaptionsAreReachedByTheKeyboard)
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

TEST_F(SnapshotsPageTest, WithoutAnyThePageSaysSo)
{
    show("Snapshots");
    EXPECT_TRUE(comesTrue([this] { return says("No snapshots yet"); }));
    EXPECT_FALSE(control<QPushButton>("Export...")->isEnabled());
}

TEST_F(SnapshotsPageTest, ADamagedArchiveIsNotTakenForNone)
{
    write(archive(), "damaged");
    show("Snapshots");
    const auto* nothing = program->window().findChild<QLabel*>(latin("nothing"));
    ASSERT_TRUE(nothing);
    EXPECT_TRUE(comesTrue([&] { return nothing->isVisible() && nothing->text().startsWith(archive()); }));
    EXPECT_FALSE(says("No snapshots yet"));
    show("History");
    EXPECT_TRUE(program->window().findChild<TimeSeriesChart*>()->content().emptyText.startsWith(archive()));
}

TEST_F(SnapshotsPageTest, OneIsSavedNow)
{
    show("Snapshots");
    control<QPushButton>("Save Now")->click();
    ASSERT_TRUE(hasRows(1));
    EXPECT_EQ(cell(0, 3), latin("42"));
    EXPECT_EQ(cell(0, 4), latin("MacBookAir6,2"));
    EXPECT_TRUE(comesTrue([this] { return says("1 snapshot saved"); }));
    EXPECT_EQ(storedCount(), 1);
}

TEST_F(SnapshotsPageTest, TheSelectionSurvivesOthersThatAreSaved)
{
    store(3);
    show("Snapshots");
    ASSERT_TRUE(hasRows(3));
    table()->selectRow(1);
    SnapshotArchive(archive()).append(recordAt(1430000000, 3500));
    Q_EMIT program->refreshed();
    ASSERT_TRUE(hasRows(4));
    EXPECT_EQ(cell(2, 2), latin("3,999 mAh"));
    ASSERT_EQ(table()->selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(table()->selectionModel()->selectedRows()[0].row(), 2);
    EXPECT_TRUE(control<QPushButton>("Delete")->isEnabled());
}

TEST_F(SnapshotsPageTest, OfThoseWithoutADateOnlyTheSelectedOneStaysSelected)
{
    QVariantList dateless{recordAt(1000, 3000), recordAt(2000, 2000)};
    for (QVariant& record : dateless) {
        QVariantMap values = record.toMap();
        values.remove(latin("Data.SnapshotDate"));
        record = values;
    }
    SnapshotView view;
    view.setRecords(dateless);
    view.selectRow(0);
    const QVariantList selected = view.selectedRecords();
    view.setRecords(dateless);
    EXPECT_EQ(view.selectedRecords(), selected);
}

TEST_F(SnapshotsPageTest, TheArrowKeysGoOnWhereOneWasDeletedOrAnotherSaved)
{
    store(5);
    show("Snapshots");
    ASSERT_TRUE(hasRows(5));
    table()->selectRow(2);
    control<QPushButton>("Delete")->click();
    ASSERT_TRUE(hasRows(4));
    EXPECT_EQ(table()->currentIndex().row(), 2);
    EXPECT_TRUE(table()->selectionModel()->selectedRows().isEmpty());
    SnapshotArchive(archive()).append(recordAt(1430000000, 3500));
    Q_EMIT program->refreshed();
    ASSERT_TRUE(hasRows(5));
    EXPECT_EQ(table()->currentIndex().row(), 3) << "a newer one stands above it";
    test::pressKey(*table(), Qt::Key_Up);
    EXPECT_EQ(table()->selectionModel()->selectedRows().value(0).row(), 2);
}

TEST_F(SnapshotsPageTest, DeletedOnesComeBack)
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

TEST_F(SnapshotsPageTest, WhatCouldNotComeBackCanBeTriedAgain)
{
    store(2);
    show("Snapshots");
    ASSERT_TRUE(hasRows(2));
    table()->selectRow(1);
    control<QPushButton>("Delete")->click();
    ASSERT_TRUE(hasRows(1));
    auto* undo = control<LinkButton>("Undo deleting");
    const auto namesArchive = [this] {
        const QList<QLabel*> labels = program->window().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [this](const QLabel* label) {
            return label->text().contains(archive() + latin(": "));
        });
    };
    {
        const FullDisk disk(16);
        undo->click();
        EXPECT_TRUE(comesTrue(namesArchive));
    }
    EXPECT_EQ(storedCount(), 1);
    ASSERT_TRUE(undo->isVisible());
    undo->click();
    EXPECT_TRUE(hasRows(2));
    EXPECT_FALSE(undo->isVisible());
}

TEST_F(SnapshotsPageTest, AFullDiskLeavesThePreviousExport)
{
    store(1); // makes the folder
    const QString path = folder() + latin("/snapshots.csv");
    const QVariantList records{recordAt(1420000000, 4000)};
    ASSERT_EQ(exportToFile(path, records, false), QString());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    {
        const FullDisk disk(16);
        EXPECT_TRUE(exportToFile(path, records, true).startsWith(path + latin(": ")));
    }
    QFile after(path);
    ASSERT_TRUE(after.open(QIODevice::ReadOnly));
    EXPECT_EQ(after.readAll(), before);
}

TEST_F(SnapshotsPageTest, TwoAreCompared)
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

TEST_F(SnapshotsPageTest, ExportedWithSerialNumbersOnlyWhereTheyAreAskedFor)
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

} // namespace
