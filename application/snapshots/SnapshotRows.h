#pragma once

#include <optional>
#include <vector>

#include <QDateTime>
#include <QString>
#include <QVariant>

namespace quindle {

/// What the list shows of a snapshot record; empty or nothing where the record does not say it.
struct SnapshotRow
{
    QDateTime date; ///< local time; invalid where the record has none
    std::optional<double> health;
    qint64 fullCharge = 0; ///< mAh
    qint64 cycles = 0;
    QString computer; ///< its model
};

SnapshotRow snapshotRow(const QVariantMap& record);

/// The records with the newest first; those without a date at the end.
QVariantList newestFirst(const QVariantList& records);

/// One value of two snapshots beside each other.
struct ComparedRow
{
    QString caption;
    QString older;
    QString newer;
    QString difference; ///< with its sign; empty for texts, for equal values and where one is missing

    bool operator==(const ComparedRow&) const = default;
};

/// What two records say, the older one first, whichever way they are given.
std::vector<ComparedRow> comparedSnapshots(const QVariantMap& one, const QVariantMap& other);

/// As the list writes it: "14 Sep 2025 09:30" in the user's language.
QString snapshotDateText(const QDateTime& date);

} // namespace quindle
