#include "application/snapshots/SnapshotRows.h"

#include <algorithm>
#include <cmath>

#include <QLocale>

#include "common/NumberConversion.h"
#include "common/NumberTexts.h"
#include "common/Translation.h"
#include "facts/ValueTexts.h"

namespace quindle {

namespace {

QVariant valueOf(const QVariantMap& record, const char* key)
{
    return record.value(QLatin1String(key));
}

qint64 numberOf(const QVariantMap& record, const char* key)
{
    return convertToInteger(valueOf(record, key)).value_or(0);
}

QDateTime dateOf(const QVariantMap& record)
{
    const QVariant value = valueOf(record, "Data.SnapshotDate");
    return value.typeId() == QMetaType::QDateTime ? value.toDateTime().toLocalTime() : QDateTime();
}

QString signedText(const QString& text, double difference)
{
    return difference > 0 ? u'+' + text : text;
}

ComparedRow comparedCounts(const QString& caption, qint64 older, qint64 newer, const QString& unit)
{
    const auto text = [&](qint64 count) {
        const QString number = countText(count, FactPlace::View);
        return number.isEmpty() ? missingValueText() : number + unit;
    };
    ComparedRow row{caption, text(older), text(newer), {}};
    if (older > 0 && newer > 0 && older != newer)
        row.difference = signedText(groupedText(newer - older, groupSeparator(FactPlace::View)) + unit,
                                    double(newer - older));
    return row;
}

ComparedRow comparedHealth(std::optional<double> older, std::optional<double> newer)
{
    const auto text = [](std::optional<double> health) {
        return health ? percentText(*health) : missingValueText();
    };
    ComparedRow row{translated("Snapshots", "Health"), text(older), text(newer), {}};
    if (older && newer && row.older != row.newer)
        row.difference = translated("Snapshots", "%1 points", "of health, with one decimal")
                             .arg(isolatedText(signedText(figureText(*newer - *older), *newer - *older)));
    return row;
}

ComparedRow comparedDates(const QDateTime& older, const QDateTime& newer)
{
    ComparedRow row{translated("Snapshots", "Date"), snapshotDateText(older), snapshotDateText(newer), {}};
    const qint64 days = older.isValid() && newer.isValid() ? older.daysTo(newer) : 0;
    if (days > 0)
        row.difference =
            days == 1
                ? translated("Snapshots", "1 day")
                : translated("Snapshots", "%1 days", nullptr, days).arg(countText(days, FactPlace::View));
    return row;
}

ComparedRow comparedTexts(const QString& caption, const QVariantMap& older, const QVariantMap& newer,
                          const char* key)
{
    const auto text = [key](const QVariantMap& record) {
        const QString known = knownText(valueOf(record, key).toString());
        return known.isEmpty() ? missingValueText() : known;
    };
    return {caption, text(older), text(newer), {}};
}

} // namespace

SnapshotRow snapshotRow(const QVariantMap& record)
{
    SnapshotRow row;
    row.date = dateOf(record).toLocalTime();
    row.health = convertToDouble(valueOf(record, "Battery.StateOfHealth"));
    // A battery without a design capacity has an endless health.
    if (row.health && (!std::isfinite(*row.health) || *row.health <= 0))
        row.health.reset();
    row.fullCharge = numberOf(record, "Battery.FullChargeCapacity");
    row.cycles = numberOf(record, "Battery.CycleCount");
    row.computer = knownText(valueOf(record, "Mac.Model").toString());
    return row;
}

QVariantList newestFirst(const QVariantList& records)
{
    std::vector<std::pair<qint64, QVariant>> dated;
    dated.reserve(static_cast<std::size_t>(records.size()));
    for (const QVariant& record : records) {
        const QDateTime date = dateOf(record.toMap());
        dated.emplace_back(date.isValid() ? date.toMSecsSinceEpoch() : std::numeric_limits<qint64>::min(),
                           record);
    }
    std::stable_sort(dated.begin(), dated.end(),
                     [](const auto& one, const auto& other) { return one.first > other.first; });
    QVariantList sorted;
    sorted.reserve(records.size());
    for (auto& [moment, record] : dated)
        sorted.append(std::move(record));
    return sorted;
}

std::vector<ComparedRow> comparedSnapshots(const QVariantMap& one, const QVariantMap& other)
{
    const bool isInOrder = dateOf(one) <= dateOf(other);
    const QVariantMap& older = isInOrder ? one : other;
    const QVariantMap& newer = isInOrder ? other : one;
    const SnapshotRow before = snapshotRow(older);
    const SnapshotRow after = snapshotRow(newer);
    return {
        comparedDates(before.date, after.date),
        comparedHealth(before.health, after.health),
        comparedCounts(translated("Snapshots", "Full charge"), before.fullCharge, after.fullCharge,
                       QStringLiteral(" mAh")),
        comparedCounts(translated("Snapshots", "Design capacity"), numberOf(older, "Battery.DesignCapacity"),
                       numberOf(newer, "Battery.DesignCapacity"), QStringLiteral(" mAh")),
        comparedCounts(translated("Snapshots", "Cycles"), before.cycles, after.cycles, {}),
        comparedTexts(translated("Snapshots", "Battery"), older, newer, "Battery.DeviceName"),
        comparedTexts(translated("Snapshots", "Computer"), older, newer, "Mac.Model"),
    };
}

QString snapshotDateText(const QDateTime& date)
{
    if (!date.isValid())
        return missingValueText();
    const QLocale locale;
    // Some locales have seconds in their short form too.
    const QString time = locale.timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss"));
    return withAsciiDigits(
        locale.toString(date.date(), translated("Dates", "d MMM yyyy", "as date formats write it")) + u' ' +
        locale.toString(date.time(), time));
}

} // namespace quindle
