#include "application/pages/SnapshotTable.h"

#include <QPixmap>

#include "application/pages/SnapshotRows.h"
#include "facts/ValueTexts.h"

namespace quindle {

namespace {

QString orMissing(const QString& text)
{
    return text.isEmpty() ? missingValueText() : text;
}

QString cellText(const SnapshotRow& row, int column)
{
    switch (column) {
    case SnapshotTable::Date:
        return snapshotDateText(row.date);
    case SnapshotTable::Health:
        return row.health ? percentText(*row.health) : missingValueText();
    case SnapshotTable::FullCharge:
        return row.fullCharge > 0 ? countText(row.fullCharge, FactPlace::View) + QStringLiteral(" mAh")
                                  : missingValueText();
    case SnapshotTable::Cycles:
        return orMissing(countText(row.cycles, FactPlace::View));
    default:
        return orMissing(row.computer);
    }
}

bool isFigure(int column)
{
    return column == SnapshotTable::Health || column == SnapshotTable::FullCharge ||
           column == SnapshotTable::Cycles;
}

/// Keeps a text at its column's beginning away from the figure at the end of the one before.
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
    endResetModel();
}

int SnapshotTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int SnapshotTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant SnapshotTable::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DisplayRole)
        return cellText(snapshotRow(record(index.row())), index.column());
    if (role == Qt::TextAlignmentRole)
        return int((isFigure(index.column()) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return role == Qt::DecorationRole && index.column() == Computer ? gap() : QVariant();
}

QVariant SnapshotTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int((isFigure(section) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role == Qt::DecorationRole && section == Computer)
        return gap();
    if (role != Qt::DisplayRole)
        return {};
    constexpr const char* captions[columns] = {"Date", "Health", "Full charge", "Cycles", "Computer"};
    return QLatin1String(captions[section]);
}

} // namespace quindle

#include "moc_SnapshotTable.cpp"
