#pragma once

#include <optional>

#include <QDateTime>
#include <QString>
#include <QVariantMap>

/// The snapshot record: one flat dictionary of property-list values that captures battery and computer at one
/// moment. It is the element of the saved history and the source of the daily upload.
namespace quindle {

struct SnapshotValues
{
    qint64 designCapacity = 0; ///< mAh, like the other capacities
    std::optional<QString> manufacturer;
    double stateOfHealth = 0; ///< percent
    qint64 legacyAgeInMonths = 0;
    qint64 cycleCount = 0;
    qint64 actualDesignCapacity = 0;
    qint64 reportedDesignCapacity = 0;
    qint64 batteryManufactureDateRaw = 0; ///< packed, not decoded
    qint64 fullChargeCapacity = 0;
    std::optional<QString> deviceName;
    QString batteryID;
    std::optional<QString> model;
    QString macManufactureDateRaw; ///< the serial number's characters that date the computer; may be empty
    QString macID;
    QDateTime snapshotDate;
    std::optional<QString> applicationVersion;
    QVariantMap raw; ///< the battery's registry entry; empty when it cannot be read
};

/// The record of these values. An absent value has no key; an empty text is a text and stays.
QVariantMap snapshotRecord(const SnapshotValues& values);

/// Health and full-charge capacity in one line: "87% (4512 mAh)".
QString snapshotSummary(double stateOfHealth, qint64 fullChargeCapacity);

} // namespace quindle
