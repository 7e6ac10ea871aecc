#include "mac/SnapshotRecord.h"

#include "common/NumberConversion.h"
#include "common/NumberTexts.h"

namespace quindle {

namespace {

QVariant unlessEmpty(const QVariantMap& map)
{
    // An entry that could not be read is missing; it is not an entry without properties.
    return map.isEmpty() ? QVariant() : QVariant(map);
}

} // namespace

QVariantMap snapshotRecord(const SnapshotValues& values)
{
    QVariantMap record{
        {QStringLiteral("Battery.DesignCapacity"), values.designCapacity},
        {QStringLiteral("Battery.Manufacturer"), variantFromOptional(values.manufacturer)},
        {QStringLiteral("Battery.StateOfHealth"), values.stateOfHealth},
        {QStringLiteral("Battery.LegacyAgeInMonths"), values.legacyAgeInMonths},
        {QStringLiteral("Battery.CycleCount"), values.cycleCount},
        {QStringLiteral("Battery.ActualDesignCapacity"), values.actualDesignCapacity},
        {QStringLiteral("Battery.ReportedDesignCapacity"), values.reportedDesignCapacity},
        {QStringLiteral("Battery.ManufactureDateRaw"), values.batteryManufactureDateRaw},
        {QStringLiteral("Battery.FullChargeCapacity"), values.fullChargeCapacity},
        {QStringLiteral("Battery.DeviceName"), variantFromOptional(values.deviceName)},
        {QStringLiteral("Battery.BatteryID"), values.batteryID},
        {QStringLiteral("Mac.Model"), variantFromOptional(values.model)},
        {QStringLiteral("Mac.ManufactureDateRaw"), values.macManufactureDateRaw},
        {QStringLiteral("Mac.ID"), values.macID},
        {QStringLiteral("Data.Summary"), snapshotSummary(values.stateOfHealth, values.fullChargeCapacity)},
        {QStringLiteral("Data.Uploaded"), false},
        {QStringLiteral("Data.Type"), QStringLiteral("Mac")},
        {QStringLiteral("Data.SnapshotDate"), values.snapshotDate},
        {QStringLiteral("Data.ApplicationVersion"), variantFromOptional(values.applicationVersion)},
        {QStringLiteral("Data.Raw"), unlessEmpty(values.raw)},
        // The version of this form of record, not of the program.
        {QStringLiteral("Data.Version"), QStringLiteral("3.4")},
    };
    // Property lists, in which records are kept, have no null.
    record.removeIf([](const auto& entry) { return !entry.value().isValid(); });
    return record;
}

QString snapshotSummary(double stateOfHealth, qint64 fullChargeCapacity)
{
    // Rounded, unlike the figure itself: people read this line.
    return fixedText(stateOfHealth, 0) + QStringLiteral("% (") + integerText(fullChargeCapacity) +
           QStringLiteral(" mAh)");
}

} // namespace quindle
