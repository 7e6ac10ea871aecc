#pragma once

#include <optional>

#include <QTableView>
#include <QVariant>

#include "application/snapshots/SnapshotOrder.h"

namespace quindle {

class SnapshotTable;

/// The list of snapshots: rows that can be selected, the newest first until another order is chosen by the
/// captions. The selection and the row that the arrow keys go on from survive sorting, and new records.
class SnapshotView : public QTableView
{
    Q_OBJECT

public:
    explicit SnapshotView(QWidget* parent = nullptr);

    void setRecords(const QVariantList& records);

    QVariantList selectedRecords() const;

    /// How many rows are selected.
    qsizetype selectedCount() const;

Q_SIGNALS:
    void selectedChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void select(const QVariantList& records);
    std::optional<int> rowOf(const QVariant& record) const;
    void setCurrentRow(int row);
    void fitToFont();
    void widenFor(SnapshotColumn column, int textWidth);

    SnapshotTable* m_table;
};

} // namespace quindle
