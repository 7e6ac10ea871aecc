#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QVariant>

#include "application/snapshots/SnapshotOrder.h"

namespace quindle {

/// Snapshot records as rows, the newest first before they are sorted.
class SnapshotTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setRecords(const QVariantList& records);

    QVariantMap record(int row) const { return m_records.at(row).toMap(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    std::vector<int> inChosenOrder();

    QVariantList m_records;
    SnapshotColumn m_column = SnapshotColumn::Date;
    Qt::SortOrder m_order = Qt::DescendingOrder;
};

} // namespace quindle
