#include "records/SnapshotExport.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QDateTime>
#include <QHash>
#include <QStringList>

#include "common/JsonText.h"
#include "common/NumberTexts.h"
#include "records/CsvText.h"
#include "records/SnapshotIdentity.h"

namespace quindle {

namespace {

struct Column
{
    const char* key = nullptr;
    bool isIdentity = false;
};

constexpr const char* batteryNumberKey = "Battery.Number";

constexpr std::array columns{
    Column{"Data.SnapshotDate"},
    Column{batteryNumberKey},
    Column{"Battery.BatteryID", true},
    Column{"Battery.Manufacturer"},
    Column{"Battery.DeviceName"},
    Column{"Battery.StateOfHealth"},
    Column{"Battery.FullChargeCapacity"},
    Column{"Battery.DesignCapacity"},
    Column{"Battery.ActualDesignCapacity"},
    Column{"Battery.ReportedDesignCapacity"},
    Column{"Battery.CycleCount"},
    Column{"Battery.LegacyAgeInMonths"},
    Column{"Battery.ManufactureDateRaw"},
    Column{"Mac.Model"},
    Column{"Mac.ID", true},
    Column{"Mac.ManufactureDateRaw"},
    Column{"Data.Summary"},
    Column{"Data.Type"},
    Column{"Data.Uploaded"},
    Column{"Data.ApplicationVersion"},
    Column{"Data.Version"},
};

/// The columns that are written.
QStringList columnKeys(ExportedIdentity identity)
{
    QStringList keys;
    for (const Column& column : columns)
        if (!column.isIdentity || identity == ExportedIdentity::Included)
            keys.append(QLatin1String(column.key));
    return keys;
}

QString utcText(const QDateTime& date)
{
    return date.isValid() ? date.toUTC().toString(Qt::ISODate) : QString();
}

QString fieldText(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::Double:
        return shortestText(value.toDouble());
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QDateTime:
        return utcText(value.toDateTime());
    case QMetaType::QByteArray:
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
        return QString::fromUtf8(jsonText(value));
    default:
        return integerText(value.toLongLong());
    }
}

/// Every text, list and dictionary inside, with dates in UTC.
QVariant withUtcDates(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDateTime)
        return utcText(value.toDateTime());
    if (value.typeId() == QMetaType::QVariantList) {
        QVariantList list = value.toList();
        for (QVariant& item : list)
            item = withUtcDates(item);
        return list;
    }
    if (value.typeId() == QMetaType::QVariantMap) {
        QVariantMap map = value.toMap();
        for (QVariant& entry : map)
            entry = withUtcDates(entry);
        return map;
    }
    return value;
}

bool isNamedSerial(const QString& key)
{
    return key.contains(u"serial", Qt::CaseInsensitive);
}

/// The serial numbers under keys that say so, at any depth.
void collectSerials(const QVariant& value, QStringList& serials)
{
    // A shorter one would match everywhere.
    constexpr qsizetype shortestSerial = 4;
    if (value.typeId() == QMetaType::QVariantList) {
        for (const QVariant& item : value.toList())
            collectSerials(item, serials);
        return;
    }
    const QVariantMap map = value.toMap();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        collectSerials(entry.value(), serials);
        const QString text = isNamedSerial(entry.key()) ? fieldText(entry.value()) : QString();
        if (text.size() >= shortestSerial)
            serials.append(text);
    }
}

bool holdsSerial(const QVariant& value, const QStringList& serials)
{
    const int type = value.typeId();
    // What is measured is none, though its digits may be those of a short one: "2025" is in many dates.
    if (type == QMetaType::QDateTime || type == QMetaType::Double)
        return false;
    if (type != QMetaType::QByteArray && type != QMetaType::QString)
        return serials.contains(fieldText(value));
    const QString text =
        type == QMetaType::QString ? value.toString() : QString::fromLatin1(value.toByteArray());
    return std::any_of(serials.cbegin(), serials.cend(),
                       [&](const QString& serial) { return text.contains(serial); });
}

bool isContainer(const QVariant& value)
{
    return value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QVariantMap;
}

QVariant withoutSerialsInside(const QVariant& value, const QStringList& serials)
{
    if (value.typeId() == QMetaType::QVariantList) {
        QVariantList kept;
        for (const QVariant& item : value.toList())
            if (isContainer(item) || !holdsSerial(item, serials))
                kept.append(withoutSerialsInside(item, serials));
        return kept;
    }
    if (value.typeId() != QMetaType::QVariantMap)
        return value;
    QVariantMap kept;
    const QVariantMap map = value.toMap();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        if (!isNamedSerial(entry.key()) && (isContainer(*entry) || !holdsSerial(*entry, serials)))
            kept.insert(entry.key(), withoutSerialsInside(*entry, serials));
    return kept;
}

/// Writes one record after the other.
class SnapshotWriter
{
public:
    explicit SnapshotWriter(const ExportOptions& options)
        : m_format(options.format)
        , m_identity(options.identity)
        , m_keys(columnKeys(options.identity))
    {
    }

    /// Of a battery, in the order in which they are asked for.
    qint64 numberOf(const QString& battery)
    {
        const auto known = m_numbers.constFind(battery);
        return known != m_numbers.cend() ? *known : *m_numbers.insert(battery, m_numbers.size() + 1);
    }

    QByteArray beginning() const { return m_format == ExportFormat::Csv ? csvRecord(m_keys) : "["; }

    QByteArray recordText(const QVariantMap& record, qint64 number)
    {
        QVariantMap shown = m_identity == ExportedIdentity::Included ? record : withoutSerialNumbers(record);
        shown.insert(QLatin1String(batteryNumberKey), number);
        if (m_format == ExportFormat::Csv)
            return csvText(shown);
        const QByteArray separator = std::exchange(m_isFirst, false) ? "\n" : ",\n";
        return separator + jsonText(withUtcDates(shown));
    }

    QByteArray end() const { return m_format == ExportFormat::Csv ? "" : "\n]\n"; }

private:
    QByteArray csvText(const QVariantMap& record) const
    {
        QStringList fields;
        for (const QString& key : m_keys)
            fields.append(fieldText(record.value(key)));
        return csvRecord(fields);
    }

    ExportFormat m_format;
    ExportedIdentity m_identity;
    QStringList m_keys;
    QHash<QString, qint64> m_numbers;
    bool m_isFirst = true;
};

} // namespace

bool exportSnapshots(const QVariantList& records, const ExportOptions& options,
                     const std::function<bool(const QByteArray&)>& write)
{
    SnapshotWriter writer(options);
    // In parts: a century of records with their registries is a gigabyte of JSON.
    if (!write(writer.beginning()))
        return false;
    for (const QVariant& record : records) {
        // The omitted ones count too, so that a battery keeps its number.
        const qint64 number = writer.numberOf(snapshotBattery(record));
        const auto date = snapshotDate(record);
        const bool isWanted = !options.since || (date && *date >= *options.since);
        if (isWanted && !write(writer.recordText(record.toMap(), number)))
            return false;
    }
    return write(writer.end());
}

QVariantMap withoutSerialNumbers(const QVariantMap& record)
{
    QStringList serials;
    collectSerials(record, serials);
    QVariantMap kept = withoutSerialsInside(record, serials).toMap();
    for (const Column& column : columns) {
        const QString key = QLatin1String(column.key);
        if (column.isIdentity)
            kept.remove(key);
        // A column's number is that figure and nothing else, also where it equals a serial number.
        else if (const QVariant value = record.value(key); value.typeId() == QMetaType::LongLong)
            kept.insert(key, value);
    }
    return kept;
}

} // namespace quindle
