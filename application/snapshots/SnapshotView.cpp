#include "application/snapshots/SnapshotView.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QDateTime>
#include <QEvent>
#include <QHeaderView>
#include <QStyle>

#include "application/snapshots/SnapshotRows.h"
#include "application/snapshots/SnapshotTable.h"
#include "application/snapshots/SortHeader.h"
#include "facts/ValueTexts.h"
#include "records/SnapshotIdentity.h"
#include "widgets/IsolatedCells.h"

namespace quindle {

namespace {

/// In the language's words and the locale's time, which may be long.
int widestDate(const QFontMetrics& metrics)
{
    int widest = 0;
    for (int month = 1; month <= 12; ++month) {
        const QDateTime evening(QDate(2028, month, 28), QTime(20, 28));
        widest = std::max(widest, metrics.horizontalAdvance(snapshotDateText(evening)));
    }
    return widest;
}

using RecordKey = std::pair<QDateTime, QString>;

RecordKey keyOf(const QVariant& record)
{
    return {snapshotDate(record).value_or(QDateTime()), snapshotBattery(record)};
}

} // namespace

SnapshotView::SnapshotView(QWidget* parent)
    : QTableView(parent)
    , m_table(new SnapshotTable(this))
{
    setAccessibleName(tr("Snapshots"));
    setHorizontalHeader(new SortHeader(this));
    setModel(m_table);
    setItemDelegate(new IsolatedCells(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setSortIndicator(static_cast<int>(SnapshotColumn::Date), Qt::DescendingOrder);
    setSortingEnabled(true);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &SnapshotView::selectedChanged);
    fitToFont();
}

void SnapshotView::setRecords(const QVariantList& records)
{
    const QVariantList selected = selectedRecords();
    const int row = currentIndex().row();
    const QVariant current = row < 0 ? QVariant() : m_table->record(row);
    m_table->setRecords(records);
    select(selected);
    if (row >= 0)
        setCurrentRow(rowOf(current).value_or(std::min(row, m_table->rowCount() - 1)));
}

std::optional<int> SnapshotView::rowOf(const QVariant& record) const
{
    const RecordKey key = keyOf(record);
    for (int row = 0; row < m_table->rowCount(); ++row)
        if (keyOf(m_table->record(row)) == key && QVariant(m_table->record(row)) == record)
            return row;
    return std::nullopt;
}

/// Where the arrow keys go on from. What is selected and what is in sight stay.
void SnapshotView::setCurrentRow(int row)
{
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(m_table->index(row, 0), QItemSelectionModel::NoUpdate);
    setAutoScroll(true);
}

void SnapshotView::select(const QVariantList& records)
{
    // Whole records are compared: several may have no date, and what is selected may be deleted.
    std::map<RecordKey, QVariantList> wanted;
    for (const QVariant& record : records)
        wanted[keyOf(record)].append(record);
    QItemSelection selection;
    for (int row = 0; !wanted.empty() && row < m_table->rowCount(); ++row) {
        const auto alike = wanted.find(keyOf(m_table->record(row)));
        if (alike != wanted.end() && alike->second.contains(QVariant(m_table->record(row))))
            selection.select(m_table->index(row, 0), m_table->index(row, snapshotColumns - 1));
    }
    selectionModel()->select(selection, QItemSelectionModel::Select);
}

QVariantList SnapshotView::selectedRecords() const
{
    QVariantList records;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        records.append(m_table->record(index.row()));
    return records;
}

qsizetype SnapshotView::selectedCount() const
{
    return selectionModel()->selectedRows().size();
}

void SnapshotView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QTableView::changeEvent(event);
}

void SnapshotView::fitToFont()
{
    const int line = fontMetrics().height();
    verticalHeader()->setDefaultSectionSize(line * 8 / 5);
    // The smallest window has room for all; the last column takes what is left.
    constexpr double lines[snapshotColumns] = {7, 3.7, 5, 3.5, 4};
    for (int column = 0; column < snapshotColumns; ++column) {
        const QString caption = m_table->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int captionWidth = fontMetrics().horizontalAdvance(caption) + line;
        setColumnWidth(column, std::max(qRound(line * lines[column]), captionWidth));
    }
    widenFor(SnapshotColumn::Date, widestDate(fontMetrics()));
    // A new battery holds more than it was made for.
    widenFor(SnapshotColumn::Health, fontMetrics().horizontalAdvance(percentText(108.8)));
}

void SnapshotView::widenFor(SnapshotColumn column, int textWidth)
{
    const int place = static_cast<int>(column);
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    setColumnWidth(place, std::max(columnWidth(place), textWidth + 2 * margin));
}

} // namespace quindle

#include "moc_SnapshotView.cpp"
