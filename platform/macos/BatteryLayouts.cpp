#include "platform/macos/BatteryLayouts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "common/NumberConversion.h"

namespace quindle {

namespace {

constexpr qint64 largestPercentage = 100;

// mAh; beyond any battery, so that products of two capacities fit.
constexpr qint64 largestCapacity = 1'000'000;

QString currentCapacityKey()
{
    return QStringLiteral("CurrentCapacity");
}

QString maxCapacityKey()
{
    return QStringLiteral("MaxCapacity");
}

QString designCapacityKey()
{
    return QStringLiteral("DesignCapacity");
}

std::array<QString, 2> currentKeys()
{
    return {QStringLiteral("Amperage"), QStringLiteral("InstantAmperage")};
}

std::optional<qint64> integerAt(const QVariantMap& entry, const QString& key)
{
    return convertToInteger(entry.value(key));
}

/// A gauge that cannot be read gives 0.
std::optional<qint64> capacityAt(const QVariantMap& entry, const QString& key)
{
    const auto capacity = integerAt(entry, key);
    return capacity && *capacity > 0 && *capacity <= largestCapacity ? capacity : std::nullopt;
}

QVariantMap batteryData(const QVariantMap& entry)
{
    return entry.value(QStringLiteral("BatteryData")).toMap();
}

/// From best to worst: what the gauge measured, under two systems' names, then the nominal capacity at an
/// even load.
std::optional<qint64> fullChargeCapacity(const QVariantMap& entry)
{
    const QVariantMap data = batteryData(entry);
    const QString nominal = QStringLiteral("NominalChargeCapacity");
    for (const auto& capacity : {capacityAt(entry, QStringLiteral("AppleRawMaxCapacity")),
                                 capacityAt(data, QStringLiteral("FullChargeCapacity")),
                                 capacityAt(entry, nominal), capacityAt(data, nominal)}) {
        if (capacity)
            return capacity;
    }
    return std::nullopt;
}

double wholePercent(qint64 part, qint64 whole)
{
    // As the models divide, so that the same percentage comes out.
    return std::floor(static_cast<double>(part) / static_cast<double>(whole) * 100.0);
}

/// The fewest mAh of `full` that make as many whole percent as `part` of `whole`.
qint64 sameShare(qint64 part, qint64 whole, qint64 full)
{
    qint64 share = (part * full + whole - 1) / whole;
    // The quotient of doubles may be a little too small for the exact share.
    while (wholePercent(share, full) < wholePercent(part, whole))
        ++share;
    return share;
}

/// A charge that is not a percentage stays as it is, for the models to refuse or show.
void layOutCapacities(QVariantMap& entry)
{
    const auto whole = capacityAt(entry, maxCapacityKey());
    const auto full = fullChargeCapacity(entry);
    if (!whole || *whole > largestPercentage || !full)
        return;
    entry.insert(maxCapacityKey(), *full);
    const auto part = integerAt(entry, currentCapacityKey());
    if (part && *part >= 0 && *part <= *whole)
        entry.insert(currentCapacityKey(), sameShare(*part, *whole, *full));
}

void layOutDesignCapacity(QVariantMap& entry)
{
    const auto design = capacityAt(batteryData(entry), designCapacityKey());
    if (design && integerAt(entry, designCapacityKey()).value_or(0) == 0)
        entry.insert(designCapacityKey(), *design);
}

/// Some gauges' 16 bits are passed on without their sign, and so are 32. No battery gives or takes 32 A.
qint64 withSign(qint64 milliamperes)
{
    for (const qint64 range : {qint64{1} << 16, qint64{1} << 32})
        if (milliamperes >= range / 2 && milliamperes < range)
            return milliamperes - range;
    return milliamperes;
}

void layOutCurrents(QVariantMap& entry)
{
    for (const QString& key : currentKeys()) {
        // The conversion reads unsigned 64 bits as signed ones.
        if (const auto milliamperes = integerAt(entry, key))
            entry.insert(key, withSign(*milliamperes));
    }
}

/// Whether the value is there and 0.
bool isZero(const QVariantMap& entry, const QString& key)
{
    return integerAt(entry, key) == 0;
}

bool isZeroOrMissing(const QVariantMap& entry, const QString& key)
{
    return !entry.contains(key) || isZero(entry, key);
}

} // namespace

bool isGhostBattery(const QVariantMap& entry)
{
    if (const auto installed = convertToBoolean(entry.value(QStringLiteral("BatteryInstalled"))))
        return !*installed;
    // Without that key, what has no charge, no voltage and no capacity of any kind.
    const bool hasCapacity = fullChargeCapacity(entry) || capacityAt(entry, designCapacityKey()) ||
                             capacityAt(batteryData(entry), designCapacityKey());
    return isZero(entry, maxCapacityKey()) && isZeroOrMissing(entry, currentCapacityKey()) &&
           isZeroOrMissing(entry, QStringLiteral("Voltage")) && !hasCapacity;
}

QVariantMap withModelUnits(QVariantMap entry)
{
    layOutCapacities(entry);
    layOutDesignCapacity(entry);
    layOutCurrents(entry);
    return entry;
}

bool hasLayout(const QString& key)
{
    const auto currents = currentKeys();
    return key == currentCapacityKey() || key == maxCapacityKey() || key == designCapacityKey() ||
           std::find(currents.begin(), currents.end(), key) != currents.end();
}

} // namespace quindle
