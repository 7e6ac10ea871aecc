#pragma once

#include <QAbstractTableModel>
#include <QVariant>

namespace quindle {

/// Snapshot records as rows, the newest first.
class SnapshotTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Date, Health, FullCharge, Cycles, Computer, columns };

    using QAbstractTableModel::QAbstractTableModel;

    void setRecords(const QVariantList& records);

    QVariantMap record(int row) const { return m_records.at(row).toMap(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariantList m_records;
};

} // namespace quindle
