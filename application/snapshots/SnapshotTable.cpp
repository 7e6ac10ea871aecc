#include "application/snapshots/SnapshotTable.h"

#include <QPixmap>

#include "application/snapshots/SnapshotRows.h"
#include "common/Translation.h"
#include "facts/ValueTexts.h"

namespace quindle {

namespace {

QString orMissing(const QString& text)
{
    return text.isEmpty() ? missingValueText() : text;
}

QString cellText(const SnapshotRow& row, SnapshotColumn column)
{
    switch (column) {
    case SnapshotColumn::Date:
        return snapshotDateText(row.date);
    case SnapshotColumn::Health:
        return row.health ? percentText(*row.health) : missingValueText();
    case SnapshotColumn::FullCharge:
        return row.fullCharge > 0 ? countText(row.fullCharge, FactPlace::View) + QStringLiteral(" mAh")
                                  : missingValueText();
    case SnapshotColumn::Cycles:
        return orMissing(countText(row.cycles, FactPlace::View));
    case SnapshotColumn::Computer:
        break;
    }
    return orMissing(row.computer);
}

bool isFigure(SnapshotColumn column)
{
    return column == SnapshotColumn::Health || column == SnapshotColumn::FullCharge ||
           column == SnapshotColumn::Cycles;
}

/// Keeps a text at the start of its column away from the figure at the end of the previous one.
QVariant gap()
{
    QPixmap empty(12, 1);
    empty.fill(Qt::transparent);
    return empty;
}

} // namespace

void SnapshotTable::setRecords(const QVariantList& records)
{
    beginResetModel();
    m_records = newestFirst(records);
    if (m_column != SnapshotColumn::Date || m_order != Qt::DescendingOrder)
        inChosenOrder();
    endResetModel();
}

int SnapshotTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int SnapshotTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : snapshotColumns;
}

QVariant SnapshotTable::data(const QModelIndex& index, int role) const
{
    const auto column = static_cast<SnapshotColumn>(index.column());
    if (role == Qt::DisplayRole)
        return cellText(snapshotRow(record(index.row())), column);
    if (role == Qt::TextAlignmentRole)
        return int((isFigure(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return role == Qt::DecorationRole && column == SnapshotColumn::Computer ? gap() : QVariant();
}

QVariant SnapshotTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const auto column = static_cast<SnapshotColumn>(section);
    if (role == Qt::TextAlignmentRole)
        return int((isFigure(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role == Qt::DecorationRole && column == SnapshotColumn::Computer)
        return gap();
    if (role == Qt::InitialSortOrderRole && column == SnapshotColumn::Date)
        return int(Qt::DescendingOrder);
    if (role != Qt::DisplayRole)
        return {};
    constexpr const char* captions[snapshotColumns] = {
        QT_TRANSLATE_NOOP("Snapshots", "Date"), QT_TRANSLATE_NOOP("Snapshots", "Health"),
        QT_TRANSLATE_NOOP("Snapshots", "Full charge"), QT_TRANSLATE_NOOP("Snapshots", "Cycles"),
        QT_TRANSLATE_NOOP("Snapshots", "Computer")};
    return translated("Snapshots", captions[section]);
}

void SnapshotTable::sort(int column, Qt::SortOrder order)
{
    m_column = static_cast<SnapshotColumn>(column);
    m_order = order;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> former = inChosenOrder();
    std::vector<int> places(former.size());
    for (std::size_t place = 0; place < former.size(); ++place)
        places[static_cast<std::size_t>(former[place])] = static_cast<int>(place);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& index : before)
        after.append(createIndex(places[static_cast<std::size_t>(index.row())], index.column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

/// Sorts the records; where each of them was before.
std::vector<int> SnapshotTable::inChosenOrder()
{
    std::vector<int> order = snapshotOrder(m_records, m_column, m_order);
    QVariantList sorted;
    sorted.reserve(m_records.size());
    for (const int index : order)
        sorted.append(m_records[index]);
    m_records = std::move(sorted);
    return order;
}

} // namespace quindle

#include "moc_SnapshotTable.cpp"
