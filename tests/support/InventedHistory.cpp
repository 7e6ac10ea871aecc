#include "tests/support/InventedHistory.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

#include <QDateTime>

#include "history/SavedHistory.h"
#include "mac/SnapshotRecord.h"
#include "records/SampleStore.h"
#include "records/SnapshotArchive.h"
#include "records/Thinning.h"

namespace quindle {

namespace {

constexpr qint64 minute = 60;
constexpr qint64 designCapacity = 5000; // mAh
constexpr double batteryEnergy = 57;    // watt-hours

/// Numbers that are the same with every standard library.
class Chance
{
public:
    explicit Chance(quint32 seed)
        : m_random(seed)
    {
    }

    /// At least 0, below 1.
    double next() { return static_cast<double>(m_random() >> 8) * 0x1p-24; }

    /// About 0, seldom beyond 2 or -2.
    double spread() { return (next() + next() + next() + next() - 2) * 1.7; }

private:
    std::mt19937 m_random;
};

/// One of the two batteries.
struct InventedBattery
{
    const char* id;
    const char* serial;
    double healthAtStart; // percent
    double lossInYear;    // percent
    qint64 cyclesAtStart;
};

constexpr InventedBattery firstBattery{"5f0c1c3f0f6a4b3e9d1f6a2b7c8d9e01", "INVENTED000000A1", 95.5, 9.2,
                                       214};
constexpr InventedBattery secondBattery{"9b7e2d4c6a184f5b8c3d2e1f0a9b8c72", "INVENTED000000B2", 101.5, 4.6,
                                        3};

bool isUsedOn(qint64 day, Chance& chance)
{
    const QDate date = QDate::fromJulianDay(2440588 + day);
    const bool isAway = date.month() == 8 && date.day() <= 14;
    const double used = date.dayOfWeek() <= 5 ? 0.97 : 0.6;
    // Always one number, so that the days after a holiday do not depend on it.
    return chance.next() < used && !isAway;
}

QVariantMap inventedRawEntry(const InventedBattery& battery, qint64 fullCharge, qint64 cycles, Chance& chance)
{
    QVariantMap raw{{QStringLiteral("BatterySerialNumber"), QString::fromLatin1(battery.serial)},
                    {QStringLiteral("CycleCount"), cycles},
                    {QStringLiteral("DesignCapacity"), designCapacity},
                    {QStringLiteral("DeviceName"), QStringLiteral("INV-57")},
                    {QStringLiteral("ExternalConnected"), true},
                    {QStringLiteral("ManufactureDate"), qint64{20'000}},
                    {QStringLiteral("Manufacturer"), QStringLiteral("Invented")},
                    {QStringLiteral("MaxCapacity"), fullCharge}};
    for (const char* key :
         {"Amperage", "AvgTimeToEmpty", "CurrentCapacity", "Temperature", "Voltage", "InstantAmperage"})
        raw.insert(QLatin1String(key), static_cast<qint64>(chance.next() * 12'000));
    for (int index = 0; index < 30; ++index)
        raw.insert(QStringLiteral("Property%1").arg(index), qint64{index} * 7);
    return raw;
}

QVariantMap inventedRecord(const InventedBattery& battery, qint64 moment, qint64 age, double waver,
                           Chance& chance)
{
    const double years = static_cast<double>(age) / 365.25;
    const double health = battery.healthAtStart - battery.lossInYear * years + waver;
    const auto fullCharge =
        static_cast<qint64>(std::round(static_cast<double>(designCapacity) * health / 100));
    const qint64 cycles = battery.cyclesAtStart + static_cast<qint64>(static_cast<double>(age) * 0.74);
    return snapshotRecord({
        .designCapacity = designCapacity,
        .manufacturer = QStringLiteral("Invented"),
        .stateOfHealth = 100.0 * static_cast<double>(fullCharge) / static_cast<double>(designCapacity),
        .legacyAgeInMonths = age / 30,
        .cycleCount = cycles,
        .actualDesignCapacity = 0,
        .reportedDesignCapacity = designCapacity,
        .batteryManufactureDateRaw = 20'000,
        .fullChargeCapacity = fullCharge,
        .deviceName = QStringLiteral("INV-57"),
        .batteryID = QString::fromLatin1(battery.id),
        .model = QStringLiteral("Invented1,1"),
        .macManufactureDateRaw = QString(),
        .macID = QStringLiteral("4d6163204f6620416e2049646561206f"),
        .snapshotDate = QDateTime::fromSecsSinceEpoch(moment, Qt::UTC),
        .applicationVersion = QStringLiteral("1.0"),
        .raw = inventedRawEntry(battery, fullCharge, cycles, chance),
    });
}

struct Waking
{
    qint64 from; // minutes of the day, as the others
    qint64 to;
    qint64 pluggedAt; // after the end: never
};

constexpr std::array wakings{Waking{8 * 60 + 20, 12 * 60 + 25, 24 * 60},
                             Waking{13 * 60 + 10, 18 * 60, 15 * 60 + 30},
                             Waking{20 * 60, 22 * 60 + 40, 21 * 60 + 10}};

/// A laptop that is used, charged and put to sleep.
class InventedUse
{
public:
    explicit InventedUse(qint64 firstDay)
        : m_chance(static_cast<quint32>(firstDay))
    {
    }

    void addDay(qint64 day, std::vector<Sample>& samples)
    {
        if (!isUsedOn(day, m_chance))
            return;
        for (const Waking& waking : wakings) {
            const auto late = static_cast<qint64>(m_chance.next() * 30);
            for (qint64 time = waking.from + late; time < waking.to; ++time)
                samples.push_back(after(day * secondsOfDay + time * minute, time >= waking.pluggedAt));
            // Asleep it loses a little, or charges to the end.
            m_charge = waking.pluggedAt < waking.to ? std::min(100.0, m_charge + 20) : m_charge - 1;
        }
    }

private:
    Sample after(qint64 moment, bool isPlugged)
    {
        m_draw = 0.85 * m_draw + 0.15 * (8.5 + 3 * m_chance.spread());
        if (isPlugged && m_charge >= 99.9) {
            m_charge = 100;
            return {moment, m_charge, 0.0, SampleState::Full};
        }
        // Above four fifths a battery takes ever less.
        const double power = isPlugged ? std::min(38.0, 2 * (101 - m_charge)) : -std::max(2.5, m_draw);
        m_charge = std::clamp(m_charge + 100 * power / (batteryEnergy * 60), 4.0, 100.0);
        const auto hundredths = [](double number) { return std::round(number * 100) / 100; };
        return {moment, hundredths(m_charge), hundredths(power),
                isPlugged ? SampleState::Charging : SampleState::Discharging};
    }

    Chance m_chance;
    double m_charge = 92;
    double m_draw = 8.5; // watts
};

} // namespace

QVariantList inventedSnapshots(const InventedTime& time)
{
    Chance chance(57);
    const qint64 lastDay = (time.end - 1) / secondsOfDay;
    const qint64 firstDay = lastDay - time.days + 1;
    const qint64 swap = firstDay + time.days * 3 / 5;
    QVariantList records;
    double waver = 0; // what a gauge finds out, and forgets again
    for (qint64 day = firstDay; day <= lastDay; ++day) {
        waver = 0.96 * waver + 0.18 * chance.spread();
        const bool isUsed = isUsedOn(day, chance);
        const qint64 moment =
            day * secondsOfDay + 7 * secondsOfHour + static_cast<qint64>(chance.next() * 5400);
        const bool isFirst = day < swap;
        if (isUsed && moment < time.end)
            records.append(inventedRecord(isFirst ? firstBattery : secondBattery, moment,
                                          day - (isFirst ? firstDay : swap), waver, chance));
    }
    return records;
}

std::vector<Sample> inventedSamples(qint64 from, int days)
{
    const qint64 firstDay = from / secondsOfDay;
    InventedUse use(firstDay);
    std::vector<Sample> samples;
    for (qint64 day = firstDay; day < firstDay + days; ++day)
        use.addDay(day, samples);
    return samples;
}

QString inventHistory(const InventedTime& time, const QString& folder)
{
    constexpr int step = 10; // days
    StoreOutcome outcome = SnapshotArchive(savedHistoryFile(folder)).merge(inventedSnapshots(time));
    SampleStore store(historyFile(folder));
    const qint64 beginning = ((time.end - 1) / secondsOfDay - time.days + 1) * secondsOfDay;
    for (qint64 from = beginning; outcome.isGood() && from < time.end; from += step * secondsOfDay) {
        std::vector<Sample> samples = inventedSamples(from, step);
        std::erase_if(samples, [&](const Sample& sample) { return sample.moment >= time.end; });
        outcome = store.append(samples);
        if (outcome.isGood())
            outcome = store.thin(std::min(from + step * secondsOfDay, time.end));
    }
    return outcome.fault;
}

} // namespace quindle
